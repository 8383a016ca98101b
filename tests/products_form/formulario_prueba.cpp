#include "formulario_prueba.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QTest>

#include "listas_productos.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

QStringList FilasDeLaInstalacion() {
  return {
      u"insert into opciones (identificador, idioma, tipo_programa, numDecimales) values "
      "('', 'CASTELLANO', 'RESTAURANTE', 2)"_s,
      u"insert into opciones_terminal (identificador, empleado, id_color) values ('', 5, 1)"_s,
      u"insert into colores (id_color, FondoMarco, FondoMarco2, FondoMarco3, FondoMarco4, "
      "FondoBoton, ColorTexto, FondoEntrada, Zoom1, Zoom2, Zoom3, Zoom4, Separador, Foco, "
      "Resalto) values (1, 15788760, 15261390, 14734020, 14206650, 16316664, 4194304, "
      "16777215, 12632256, 12632256, 12632256, 12632256, 8421504, 65535, 255)"_s,
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
  QStringList nombres =
      u"codigo nombre borrar mostrarencaja coste precio iva margencomercial "
      "seccion tipoprod hechoen unidadmedida impresora"_s.split(u' ');
  QStringList valores =
      (u"'"_s + codigo + u"'|'"_s + nombre + u"'|0|0|1|2|10|0|'-1'|1|1|'Unidades'|0"_s).split(u'|');
  for (const auto& [columna, valor] : columnas) {
    const qsizetype i = nombres.indexOf(columna.toLower());
    if (i < 0) {
      nombres.append(columna);
      valores.append(valor);
    } else {
      valores[i] = valor;
    }
  }
  return u"insert into productos ("_s + nombres.join(u", "_s) + u") values ("_s +
         valores.join(u", "_s) + u")"_s;
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

QString Proveedor(const QString& codigo, const QString& nombre) {
  return u"insert into proveedores (codigo, nombre, borrar) values ('%1', '%2', 0)"_s.arg(codigo,
                                                                                          nombre);
}

QString Familia(const QString& codigo, const QString& nombre, int orden) {
  return u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
         "('%1', '%2', 0, 0, %3, 0)"_s.arg(codigo, nombre)
             .arg(orden);
}

void Exigir(FormularioPrueba& f, bool (*estado)(FormularioPrueba&, const QString&),
            const QString& nombres, bool esperado) {
  for (const QString& nombre : nombres.split(u' ', Qt::SkipEmptyParts))
    QVERIFY2(estado(f, nombre) == esperado, qPrintable(nombre));
}

QString Texto(FormularioPrueba& f, const QString& nombre) {
  if (auto* campo = f.control<QLineEdit>(nombre))
    return campo->text();
  if (auto* etiqueta = f.control<QLabel>(nombre))
    return etiqueta->text();
  return u"<"_s + nombre + u"?>"_s;
}

QColor ColorMostrado(FormularioPrueba& f, const QString& caja) {
  const QImage imagen = f.control<QLabel>(caja)->pixmap().toImage();
  return imagen.isNull() ? QColor() : imagen.pixelColor(imagen.width() / 2, imagen.height() / 2);
}

QStringList Lineas(FormularioPrueba& f, const QString& lista) {
  QStringList r;
  if (auto* l = f.control<QListView>(lista)) {
    for (int i = 0; i < l->model()->rowCount(); ++i)
      r.append(l->model()->index(i, 0).data().toString());
  }
  return r;
}

void Escribir(FormularioPrueba& f, const QString& nombre, const QString& texto) {
  auto* campo = f.control<QLineEdit>(nombre);
  QVERIFY2(campo && campo->isVisible() && campo->isEnabled(), qPrintable(nombre));
  QTest::mouseClick(campo, Qt::LeftButton);
  QTRY_COMPARE(QApplication::focusWidget(), campo);
  if (!campo->hasSelectedText())
    QTest::keyClick(campo, Qt::Key_End);
  for (int i = 0; i < 40 && !campo->text().isEmpty(); ++i)
    QTest::keyClick(campo, Qt::Key_Backspace);
  QCOMPARE(campo->text(), QString());
  QTest::keyClicks(campo, texto);
  QCOMPARE(campo->text(), texto);
}

void TocarLinea(FormularioPrueba& f, const QString& lista, const QString& texto) {
  auto* l = f.control<QListView>(lista);
  QVERIFY2(l && l->isVisible(), qPrintable(lista));
  for (int i = 0; i < l->model()->rowCount(); ++i) {
    const QModelIndex linea = l->model()->index(i, 0);
    if (linea.data().toString().startsWith(texto)) {
      l->scrollTo(linea);
      QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualRect(linea).center());
      return;
    }
  }
  QFAIL(qPrintable(lista + u": "_s + texto));
}

void TocarFamilia(FormularioPrueba& f, const QString& familia, const QString& panel) {
  auto* p = f.control<PanelObjNuevo>(panel);
  QVERIFY2(p && p->isVisible(), qPrintable(panel));
  for (int pagina = 0; pagina < 10; ++pagina) {
    for (QAbstractButton* b : p->findChildren<QAbstractButton*>()) {
      if (b->objectName().startsWith(u"boton_"_s) && b->isVisible() &&
          b->accessibleName() == familia) {
        QTest::mouseClick(b, Qt::LeftButton);
        return;
      }
    }
    auto* siguiente = p->findChild<QAbstractButton*>(u"flecha_der"_s);
    QVERIFY2(siguiente && siguiente->isEnabled(), qPrintable(familia));
    QTest::mouseClick(siguiente, Qt::LeftButton);
  }
  QFAIL(qPrintable(familia));
}

ProductoFormulario Cana() {
  ProductoFormulario p;
  p.nombre = u"Caña"_s;
  p.descripcion = u"Cerveza de barril"_s;
  p.codigoBarras = u"8410000000017"_s;
  p.coste = u"0,6"_s;
  p.margen = u"1"_s;
  p.precio = u"1,76"_s;
  p.iva = u"10"_s;
  p.stockActual = u"24"_s;
  p.stockMinimo = u"5"_s;
  p.unidadMedida = u"Unidades"_s;
  p.mostrarEnCaja = true;
  p.optBarra = true;
  p.optAmbos = true;
  p.color = u"255"_s;
  p.foto = u"cana.jpg"_s;
  p.impresora = u"2"_s;
  p.descNumerica = u"12"_s;
  p.posicion = u"3"_s;
  p.familia = u"7"_s;
  p.proveedores = {LineaLista(u"Mahou"_s, u"P01"_s),
                   LineaLista(u"Distribuciones Sur"_s, u"PRV123"_s)};
  return p;
}

QString Imagen(const QString& carpeta, const QString& nombre, qint64 bytes, const QColor& color) {
  QImage imagen(16, 16, QImage::Format_RGB32);
  imagen.fill(color);
  QByteArray datos;
  QBuffer buffer(&datos);
  buffer.open(QIODevice::WriteOnly);
  imagen.save(&buffer, "PNG");
  datos.append(QByteArray(bytes - datos.size(), '\0'));
  QDir().mkpath(carpeta);
  const QString ruta = QDir(carpeta).filePath(nombre);
  QFile f(ruta);
  if (!f.open(QIODevice::WriteOnly) || f.write(datos) != datos.size())
    return {};
  return ruta;
}

QByteArray Contenido(const QString& ruta) {
  QFile f(ruta);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
