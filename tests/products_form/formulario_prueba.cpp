#include "formulario_prueba.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

QStringList FilasDeLaInstalacion() {
  return {
      u"insert into opciones (identificador, idioma, tipo_programa, numDecimales) values "
      "('', 'CASTELLANO', 'RESTAURANTE', 2)"_s,
      u"insert into opciones_terminal (identificador, empleado, id_color) values ('', 5, 1)"_s,
      // Frames, buttons and text in light blue and dark blue; entry white; focus yellow.
      u"insert into colores (id_color, FondoMarco, FondoMarco2, FondoMarco3, FondoMarco4, "
      "FondoBoton, ColorTexto, FondoEntrada, Zoom1, Zoom2, Zoom3, Zoom4, Separador, Foco, "
      "Resalto) values (1, 15788760, 15261390, 14734020, 14206650, 16316664, 4194304, "
      "16777215, 12632256, 12632256, 12632256, 12632256, 8421504, 65535, 255)"_s,
      // The captions are gathered already: the load does not write them again.
      u"insert into EjecutablesTraduccion values ('productos-frmProductos1024')"_s,
  };
}

FormularioPrueba::FormularioPrueba(const QStringList& filas) {
  inst_.ejecutar(FilasDeLaInstalacion());
  inst_.ejecutar(filas);
  Sesion& s = inst_.entorno().sesion;
  s.idioma = u"CASTELLANO"_s;
  s.tipo_programa = u"RESTAURANTE"_s;
  s.TipoProgramaInformes = u"RESTAURANTE"_s;
  s.numDecimales = 2;
  s.EmpleadoActual = 5;
  s.id_color = 1;
  s.rutaFotos = QDir(inst_.carpeta()).filePath(u"fotos"_s) + u"\\"_s;
}

FrmProductos1024& FormularioPrueba::forma() {
  if (!forma_)
    forma_ = std::make_unique<FrmProductos1024>(inst_.entorno(), tablas_);
  return *forma_;
}

bool FormularioPrueba::mostrar() {
  forma().show();
  forma().activateWindow();
  return QTest::qWaitForWindowActive(&forma());
}

QString Producto(const QString& codigo, const QString& nombre,
                 const QList<QPair<QString, QString>>& columnas) {
  QList<QPair<QString, QString>> valores = {
      {u"codigo"_s, u"'"_s + codigo + u"'"_s},
      {u"nombre"_s, u"'"_s + nombre + u"'"_s},
      {u"borrar"_s, u"0"_s},
      {u"mostrarencaja"_s, u"0"_s},
      {u"coste"_s, u"1"_s},
      {u"precio"_s, u"2"_s},
      {u"iva"_s, u"10"_s},
      {u"margencomercial"_s, u"0"_s},
      {u"seccion"_s, u"'-1'"_s},
      {u"tipoprod"_s, u"1"_s},
      {u"hechoen"_s, u"1"_s},
      {u"unidadMedida"_s, u"'Unidades'"_s},
      {u"impresora"_s, u"0"_s},
  };
  for (const auto& [columna, valor] : columnas) {
    bool cambiada = false;
    for (auto& v : valores) {
      if (v.first.compare(columna, Qt::CaseInsensitive) == 0) {
        v.second = valor;
        cambiada = true;
      }
    }
    if (!cambiada)
      valores.append({columna, valor});
  }
  QStringList nombres;
  QStringList literales;
  for (const auto& [columna, valor] : valores) {
    nombres.append(columna);
    literales.append(valor);
  }
  return u"insert into productos ("_s + nombres.join(u", "_s) + u") values ("_s +
         literales.join(u", "_s) + u")"_s;
}

QString Stock(const QString& codigo, const QString& stock, const QString& minimo) {
  return u"insert into stock (producto, stock, stockminimo) values (%1, %2, %3)"_s.arg(
      codigo, stock, minimo);
}

void UsarPantalla(int ancho, int alto) {
  if (!qEnvironmentVariable("QT_QPA_PLATFORM").startsWith(u"offscreen"_s))
    return;
  const QString ruta =
      QDir::temp().filePath(u"productos-pantalla-%1x%2.json"_s.arg(ancho).arg(alto));
  QFile f(ruta);
  if (f.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    f.write(
        uR"({"screens": [{"name": "Prueba", "x": 0, "y": 0, "width": %1, "height": %2,
                 "logicalDpiX": 96, "logicalDpiY": 96, "dpr": 1}]})"_s.arg(ancho)
            .arg(alto)
            .toUtf8());
    f.close();
    qputenv("QT_QPA_PLATFORM", (u"offscreen:configfile="_s + ruta).toLocal8Bit());
  }
}

QString Impresora(int codigo, const QString& nombre) {
  return u"insert into impresoras (codigo, nombre) values (%1, '%2')"_s.arg(codigo).arg(nombre);
}
