#include <QCryptographicHash>
#include <QImageReader>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

#include "conexion.h"
#include "dialogos_guion.h"
#include "ean13.h"
#include "entorno.h"
#include "esquema.h"
#include "instalacion.h"
#include "instalacion_demo.h"
#include "instalacion_prueba.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kCadenaVelandria = u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s;

QVariantList Valores(Conexion& c, const QString& sql) {
  QVariantList r;
  for (const QVariantList& f : FilasDe(c, sql))
    r.append(f.first());
  return r;
}

int Cuenta(Conexion& c, const QString& sql) {
  return FilasDe(c, sql).first().first().toInt();
}

QByteArray Huella(const QString& ruta) {
  QFile f(ruta);
  if (!f.open(QIODevice::ReadOnly))
    return {};
  return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
}

// The suite stores red in the lowest byte.
QColor ColorSuite(qint64 v) {
  return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF);
}

double Luminancia(const QColor& c) {
  auto lineal = [](double v) {
    v /= 255.0;
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineal(c.red()) + 0.7152 * lineal(c.green()) + 0.0722 * lineal(c.blue());
}

double Contraste(const QColor& a, const QColor& b) {
  const double la = Luminancia(a), lb = Luminancia(b);
  return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

}  // namespace

class TestInstalacionDemo : public QObject {
  Q_OBJECT

  QTemporaryDir dir_;
  QString carpeta_;
  Conexion bd_;

 private slots:
  void initTestCase() {
    QVERIFY(dir_.isValid());
    carpeta_ = QDir(dir_.path()).filePath(u"demo"_s);
    const ResultadoDemo r = CrearInstalacionDemo({carpeta_});
    QVERIFY2(r.creada, qPrintable(r.mensaje));
    bd_.abrirSQLite(QDir(carpeta_).filePath(u"velandria.db"_s));
  }

  void tablasLlenas() {
    // Only the program's own use counts and registration marks start empty.
    for (const Tabla& t : TablasPrincipales()) {
      const int filas = Cuenta(bd_, u"select count(*) from "_s + t.nombre);
      const bool vacia = t.nombre == u"entradas1"_s || t.nombre == u"EjecutablesTraduccion"_s;
      QVERIFY2(vacia ? filas == 0 : filas > 0, qPrintable(t.nombre));
    }
    QCOMPARE(Cuenta(bd_, u"select count(*) from seccion where menu = 0"_s), 10);
    QCOMPARE(Cuenta(bd_, u"select count(*) from seccion where menu = -1"_s), 2);
    QVERIFY(Cuenta(bd_, u"select count(*) from productos where borrar = 0"_s) >= 60);
    QCOMPARE(Cuenta(bd_, u"select count(*) from productos where borrar = -1"_s), 2);
    QVERIFY(Cuenta(bd_, u"select count(*) from proveedores where borrar = -1"_s) >= 1);
  }

  // The start-up reads the installation exactly as the program will.
  void arranqueDelPrograma() {
    DialogosGuion dialogos;
    Entorno entorno(Instalacion::Cargar(carpeta_), dialogos);
    QStringList errores;
    entorno.registro.setMostrar(
        [&](const QString& c, const QString& d) { errores.append(c + u": "_s + d); });
    bool mostrado = false;
    Main(entorno, [&] { mostrado = true; });
    QVERIFY2(errores.isEmpty(), qPrintable(errores.join(u'\n')));
    QVERIFY(mostrado);
    const Sesion& s = entorno.sesion;
    QCOMPARE(s.IdentificadorInstalacion, u"INST1"_s);
    QCOMPARE(s.IdentificadorTerminal, u"INST1T1"_s);
    QCOMPARE(s.TipoProgramaInformes, u"RESTAURANTE"_s);
    QCOMPARE(s.tipo_programa, u"RESTAURANTE"_s);
    QCOMPARE(s.ModoPrograma, qint16(-1));
    QCOMPARE(s.idioma, u"CASTELLANO"_s);
    QCOMPARE(s.numDecimales, qint16(2));
    QCOMPARE(s.modocaja, qint16(1));
    QCOMPARE(s.animacioncaja, false);
    QCOMPARE(s.ColorPanelFamilias, true);
    QCOMPARE(s.EmpleadoActual, 1);
    QCOMPARE(s.id_color, qint16(1));
    QCOMPARE(s.rutaFotos, QDir(carpeta_).filePath(u"fotos"_s) + QDir::separator());
    QVERIFY(QFileInfo(s.rutaFotos).isDir());
    QCOMPARE(s.RutaFotosBD, s.rutaFotos);
  }

  void configuracion() {
    const Instalacion inst = Instalacion::Cargar(carpeta_);
    QCOMPARE(inst.ayudaWeb, u"https://ayuda.productos.invalid/"_s);
    QVERIFY(
        inst.configuracion.valor(u"traduccion"_s, u"excluir"_s).split(u'|').contains(u"dulvore"_s));
    Conexion velandria;
    velandria.abrir(kCadenaVelandria, inst.origenes);
    QCOMPARE(velandria.motor(), Motor::SQLite);
    QVERIFY(Cuenta(velandria, u"select count(*) from productos"_s) > 0);
    Conexion informes;
    informes.abrir(u"dsn=informes"_s, inst.origenes);
    QCOMPARE(FilasDe(informes, u"select tipoPrograma, list1, list2 from listadostemporal"_s),
             (QList<QVariantList>{{u"RESTAURANTE"_s, u"T1"_s, u"INST1"_s}}));
  }

  void opcionesYTerminales() {
    QCOMPARE(FilasDe(bd_,
                     u"select identificador, empleado, id_color, ColorPredefinido, Tipo_Letra "
                     "from opciones_terminal order by identificador"_s),
             (QList<QVariantList>{{u"INST1T1"_s, 1, 1, -1, 1}, {u"INST1T2"_s, 4, 2, -1, 2}}));
    QCOMPARE(FilasDe(bd_, u"select indice, daton from relaciones_fijas"_s),
             (QList<QVariantList>{{u"opcion_color_panel_familias"_s, -1}}));
    // Every terminal's scheme and employee exist.
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from opciones_terminal where id_color not in "
                    "(select id_color from colores) or empleado not in "
                    "(select codigo from empleados)"_s),
             0);
  }

  void codigosDeProducto() {
    QSet<int> vistos;
    for (const QVariant& v : Valores(bd_, u"select codigo from productos"_s)) {
      bool ok = false;
      const int codigo = v.toString().toInt(&ok);
      QVERIFY2(ok && codigo > 0 && v.toString() == QString::number(codigo),
               qPrintable(v.toString()));
      QVERIFY(!vistos.contains(codigo));
      vistos.insert(codigo);
    }
    // The next code the form will give is one past the largest, deleted rows included.
    const QVariantList ordenados =
        Valores(bd_, u"select codigo from productos order by val(codigo)"_s);
    QCOMPARE(ordenados.last().toInt(), int(vistos.size()));
  }

  void descripcionesNumericasUnicas() {
    const QVariantList numeros =
        Valores(bd_,
                u"select DescNumerica from productos where borrar = 0 and mostrarencaja = 0 "
                "and seccion <> '-1'"_s);
    QVERIFY(numeros.size() >= 60);
    QSet<int> vistos;
    for (const QVariant& n : numeros) {
      QVERIFY(!n.isNull() && n.toInt() > 0);
      QVERIFY2(!vistos.contains(n.toInt()), qPrintable(n.toString()));
      vistos.insert(n.toInt());
    }
  }

  void codigosDeBarras() {
    QSet<QString> vistos;
    // Deleted products too: their barcodes still block new products.
    for (const QVariant& v : Valores(bd_, u"select codigobarras from productos"_s)) {
      QVERIFY2(EsEan13Valido(v.toString()), qPrintable(v.toString()));
      QVERIFY(!vistos.contains(v.toString()));
      vistos.insert(v.toString());
    }
  }

  void importesYClasificacion() {
    const QList<QVariantList> filas =
        FilasDe(bd_,
                u"select nombre, coste, MargenComercial, Precio, IVA, tipoprod, hechoen, "
                "unidadMedida, seccion from productos where borrar = 0"_s);
    const QStringList unidades = {u"Unidades"_s, u"Kilogramos"_s, u"Litros"_s};
    const QVariantList familias = Valores(bd_, u"select codigo from seccion where menu = 0"_s);
    for (const QVariantList& f : filas) {
      const QString nombre = f.at(0).toString();
      const double coste = f.at(1).toDouble(), margen = f.at(2).toDouble();
      const double precio = f.at(3).toDouble(), iva = f.at(4).toDouble();
      QVERIFY2(iva == 10 || iva == 21, qPrintable(nombre));
      QVERIFY2(f.at(6).toInt() == 1 || f.at(6).toInt() == 2, qPrintable(nombre));
      QVERIFY2(unidades.contains(f.at(7).toString()), qPrintable(nombre));
      QVERIFY2(f.at(8).toString() == u"-1"_s || familias.contains(f.at(8)), qPrintable(nombre));
      QVERIFY2(coste >= 0 && precio >= 0, qPrintable(nombre));
      // The form's own rule for a simple product: price = (cost + margin) x (1 + IVA/100).
      if (f.at(5).toInt() != 3 && precio > 0) {
        QVERIFY2(qAbs((coste + margen) * (1 + iva / 100) - precio) <= 0.01, qPrintable(nombre));
        QVERIFY2(margen > 0, qPrintable(nombre));
      }
    }
    QCOMPARE(FilasDe(bd_,
                     u"select coste, MargenComercial, Precio, IVA, hechoen, tipoprod, Orden, "
                     "DescNumerica, seccion, proveedor, MostrarEnCaja from productos where "
                     "nombre = 'Café solo'"_s),
             (QList<QVariantList>{{0.15, 0.94, 1.2, 10.0, 1, 1, 1, 101, u"1"_s, u"1"_s, 0}}));
  }

  void proveedoresYStock() {
    // Every product's main supplier is linked and exists; live products buy from live ones.
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productos p where not exists (select * from "
                    "productoproveedor pp where pp.producto = p.codigo and pp.proveedor = "
                    "p.proveedor)"_s),
             0);
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productoproveedor where proveedor not in "
                    "(select codigo from proveedores) or coste <> 0"_s),
             0);
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productos where borrar = 0 and proveedor in "
                    "(select codigo from proveedores where borrar = -1)"_s),
             0);
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productoproveedor pp, productos p where "
                    "pp.producto = p.codigo and p.borrar = -1 and pp.proveedor in (select "
                    "codigo from proveedores where borrar = -1)"_s),
             2);
    // One stock row per live product; the deleted ones lost theirs.
    QCOMPARE(Cuenta(bd_, u"select count(*) from stock"_s),
             Cuenta(bd_, u"select count(*) from productos where borrar = 0"_s));
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productos p where borrar = 0 and not exists "
                    "(select * from stock s where s.producto = val(p.codigo))"_s),
             0);
  }

  void recetasSubproductosYMenus() {
    QCOMPARE(Cuenta(bd_, u"select count(distinct productopadre) from productoElaborado_producto"_s),
             4);
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productos where tipoprod = 3 and codigo not in "
                    "(select productopadre from productoelaborado_producto)"_s),
             0);
    const QList<QVariantList> lineas =
        FilasDe(bd_,
                u"select e.productohijo, e.cantidad, p.nombre, p.borrar from "
                "productoElaborado_producto e left join productos p on p.codigo = "
                "e.productohijo"_s);
    for (const QVariantList& l : lineas) {
      QVERIFY(!l.at(2).isNull() && l.at(3).toInt() == 0);
      QVERIFY(l.at(1).toDouble() > 0);
      QVERIFY(l.at(0).toInt() <= 32767);            // read back as a 16-bit whole number
      QVERIFY(!l.at(2).toString().contains(u'('));  // a '(' would break the quantity's parse
    }
    QCOMPARE(Cuenta(bd_,
                    u"select count(*) from productoElaborado_producto where productohijo in "
                    "(select productopadre from productoElaborado_producto)"_s),
             0);
    // Sub-products and menu dishes are live products that the panels can show.
    const QString visibles =
        u"(select codigo from productos where borrar = 0 and mostrarencaja "
        "= 0 and seccion <> '-1')"_s;
    QCOMPARE(Cuenta(bd_, u"select count(*) from subproductos where codproductopadre not in "_s +
                             visibles + u" or codproductohijo not in "_s + visibles),
             0);
    QCOMPARE(
        Cuenta(bd_, u"select count(*) from menu_productos where producto not in "_s + visibles +
                        u" or orden not in (1, 2, 3) or seccion not in (select codigo "
                        "from seccion where menu = -1)"_s),
        0);
  }

  void impresoras() {
    const QVariantList nombres = Valores(bd_, u"select nombre from impresoras"_s);
    QVERIFY(nombres.size() > 2);
    for (const QString& n : {u"Cocina"_s, u"Barra"_s, u"Terraza"_s})
      QVERIFY(nombres.contains(n));
    // Only the Capuchino keeps pointing at a printer that was removed.
    QCOMPARE(Valores(bd_,
                     u"select nombre from productos where impresora <> 0 and impresora not "
                     "in (select codigo from impresoras)"_s),
             QVariantList{u"Capuchino"_s});
  }

  void esquemasDeColorLegibles() {
    const QList<QVariantList> esquemas = FilasDe(bd_, u"select * from colores order by id_color"_s);
    QVERIFY(esquemas.size() >= 4);
    for (const QVariantList& e : esquemas) {
      QCOMPARE(e.size(), 16);
      const QString nombre = e.at(15).toString();
      QVERIFY(!nombre.isEmpty());
      QList<QColor> c;
      for (int i = 1; i <= 14; ++i) {
        QVERIFY(!e.at(i).isNull());
        c.append(ColorSuite(e.at(i).toLongLong()));
      }
      // Text on every background it is painted on; buttons keep the toolkit's black text.
      for (int fondo : {0, 1, 2, 3, 6, 7, 9, 10, 12}) {
        QVERIFY2(Contraste(c.at(5), c.at(fondo)) >= 4.5,
                 qPrintable(u"%1: elemento %2"_s.arg(nombre).arg(fondo)));
      }
      QVERIFY2(Contraste(Qt::black, c.at(4)) >= 4.5, qPrintable(nombre));
    }
    // Red in the lowest byte: the high-contrast scheme's yellow buttons are 0xFFD400.
    QCOMPARE(Cuenta(bd_, u"select FondoBoton from colores where nombre = 'Alto contraste'"_s),
             0x00D4FF);
  }

  void traducciones() {
    const QList<QVariantList> filas =
        FilasDe(bd_, u"select caption, traduccion, ingles from traducciones"_s);
    QSet<QString> captions;
    for (const QVariantList& f : filas) {
      QVERIFY(!f.at(1).toString().isEmpty());
      QCOMPARE(f.at(1), f.at(2));
      QVERIFY2(!captions.contains(f.at(0).toString().toLower()), qPrintable(f.at(0).toString()));
      captions.insert(f.at(0).toString().toLower());
    }
    for (const QString& c :
         {u"nuevo"_s, u"modificar"_s, u"aceptar"_s, u"cancelar"_s, u"eliminar"_s, u"primero"_s,
          u"ultimo"_s, u"producto de venta - barra"_s, u"producto de cocina - uso interno"_s,
          u"producto entrada / ropero"_s, u"mostrar en pantalla de venta"_s,
          u"seleccione sus proveedores"_s, u"<nombre de la familia>"_s}) {
      QVERIFY2(captions.contains(c), qPrintable(c));
    }
    QCOMPARE(Valores(bd_, u"select traduccion from traducciones where caption = 'Nuevo'"_s),
             QVariantList{u"New"_s});
  }

  void restriccionesDeBotones() {
    const QString consulta =
        u"Select boton, boton_auxiliar from atributos,empleadosatributos where "
        "empleadosatributos.codEmpleado = %1 and atributos.form = 'frmProductos1024' and "
        "atributos.codigo = empleadosatributos.codatributo"_s;
    const QVariantList botones = Valores(bd_,
                                         u"select boton from atributos where form = "
                                         "'frmProductos1024'"_s);
    for (const QString& b :
         {u"cmd_eliminar"_s, u"cmd_nuevo"_s, u"cmd_modificar"_s, u"Boton_SM1"_s}) {
      QVERIFY2(botones.contains(b), qPrintable(b));
    }
    QVERIFY(FilasDe(bd_, consulta.arg(1)).isEmpty());
    // The trainee: no deleting on either screen, no prices; the prices label goes too.
    const QList<QVariantList> restringidos =
        FilasDe(bd_, consulta.arg(4) + u" order by atributos.codigo"_s);
    QStringList nombres;
    for (const QVariantList& f : restringidos) {
      nombres << f.at(0).toString();
      QCOMPARE(f.at(1).isNull(), f.at(0).toString() != u"Boton_SM1"_s);
    }
    QCOMPARE(nombres, (QStringList{u"cmd_eliminar"_s, u"Boton_SM1"_s, u"cmd_EliminarProdEla"_s}));
    QCOMPARE(Valores(bd_, u"select boton_auxiliar from atributos where boton = 'Boton_SM1'"_s),
             QVariantList{u"Label2"_s});
    QCOMPARE(Cuenta(bd_, u"select count(distinct codEmpleado) from empleadosatributos"_s), 1);
  }

  void fotos() {
    const QDir fotos(QDir(carpeta_).filePath(u"fotos"_s));
    QStringList archivos;
    for (const QVariant& v : Valores(bd_, u"select Imagen from seccion"_s))
      archivos << v.toString();
    const QVariantList deProductos =
        Valores(bd_, u"select Foto from productos where Foto is not null"_s);
    QVERIFY(deProductos.size() >= 40);
    for (const QVariant& v : deProductos)
      archivos << v.toString();
    archivos << u"defecto.gif"_s;
    for (const QString& a : archivos) {
      const QFileInfo info(fotos.filePath(a));
      QVERIFY2(info.exists(), qPrintable(a));
      QVERIFY2(info.size() < 75000, qPrintable(a));
      QImageReader lector(info.filePath());
      const QImage imagen = lector.read();
      QVERIFY2(!imagen.isNull(), qPrintable(a + u": "_s + lector.errorString()));
      QCOMPARE(imagen.size(), QSize(160, 160));
    }
    QCOMPARE(QImageReader(fotos.filePath(u"defecto.gif"_s)).format(), QByteArray("gif"));
  }

  void paginasDeAyuda() {
    DialogosGuion dialogos;
    Entorno entorno(Instalacion::Cargar(carpeta_), dialogos);
    const QDir ayuda(QDir(carpeta_).filePath(u"ayuda"_s));
    for (const QString& pagina : {u"A_Productos.html"_s, u"A_ProductosElaborados.html"_s,
                                  u"A_Buscar.html"_s, u"A_SubProductos.html"_s}) {
      QFile f(ayuda.filePath(pagina));
      QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(pagina));
      const QString html = QString::fromUtf8(f.readAll());
      QVERIFY(html.size() > 2500);
      QVERIFY(html.contains(u"<title>"_s) && html.contains(u"</html>"_s));
      // Links between the pages lead to files that exist.
      static const QRegularExpression enlace(u"href=\"([^\"#:]+)\""_s);
      for (auto m = enlace.globalMatch(html); m.hasNext();) {
        const QString destino = m.next().captured(1);
        QVERIFY2(QFileInfo::exists(ayuda.filePath(destino)), qPrintable(destino));
      }
      AbrirAyuda(entorno, pagina);
      QCOMPARE(dialogos.llamadas().last().texto, ayuda.filePath(pagina));
    }
    AbrirAyuda(entorno, u"A_Clientes.html"_s);
    QCOMPARE(dialogos.llamadas().last().texto,
             u"https://ayuda.productos.invalid/A_Clientes.html"_s);
  }

  void programaDePrecios() {
    const QDir dir(carpeta_);
    const QString tarvelo = dir.filePath(u"Tarvelo.exe"_s);
    QVERIFY(QFileInfo(tarvelo).isExecutable());
    QFile modo(dir.filePath(u"ModoPrecio.txt"_s));
    QVERIFY(modo.open(QIODevice::WriteOnly));
    modo.write("0");
    modo.close();
    QProcess p;
    p.setWorkingDirectory(QDir::tempPath());  // it must find its files wherever it is started
    p.start(tarvelo, {});
    QVERIFY(p.waitForFinished());
    QCOMPARE(p.exitCode(), 0);
    QFile log(dir.filePath(u"Tarvelo.log"_s));
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY2(log.readAll().trimmed().endsWith(" ModoPrecio=0"), "Tarvelo.log");
  }

  void noSobrescribe() {
    const QString db = QDir(carpeta_).filePath(u"velandria.db"_s);
    const QByteArray antes = Huella(db);
    const ResultadoDemo r = CrearInstalacionDemo({carpeta_});
    QVERIFY(!r.creada);
    QVERIFY(r.mensaje.contains(u"ya contiene una instalación"_s));
    QVERIFY(r.mensaje.contains(u"--reemplazar"_s));
    QCOMPARE(Huella(db), antes);
    QCOMPARE(QDir(carpeta_).entryList({u".productos-demo-*"_s}, QDir::AllEntries | QDir::Hidden),
             QStringList());
  }

  void reemplazaConservandoLoAjeno() {
    QTemporaryDir otro;
    const QString carpeta = otro.path();
    QVERIFY(CrearInstalacionDemo({carpeta}).creada);
    {
      Conexion c;
      c.abrirSQLite(QDir(carpeta).filePath(u"velandria.db"_s));
      c.ejecutar(u"update productos set nombre = 'Cambiado' where codigo = '1'"_s);
    }
    QFile log(QDir(carpeta).filePath(u"Errores.log"_s));
    QVERIFY(log.open(QIODevice::WriteOnly));
    log.write("opciones  1, Descripcion: x\r\n");
    log.close();
    OpcionesDemo o{carpeta};
    o.reemplazar = true;
    o.idioma = u"INGLES"_s;
    o.terminal = u"T2"_s;
    const ResultadoDemo r = CrearInstalacionDemo(o);
    QVERIFY2(r.creada, qPrintable(r.mensaje));
    QVERIFY(QFileInfo::exists(log.fileName()));
    Conexion c;
    c.abrirSQLite(QDir(carpeta).filePath(u"velandria.db"_s));
    QCOMPARE(Valores(c, u"select nombre from productos where codigo = '1'"_s),
             QVariantList{u"Café solo"_s});
    QCOMPARE(Valores(c, u"select idioma from opciones"_s), QVariantList{u"INGLES"_s});
    Conexion informes;
    informes.abrirSQLite(QDir(carpeta).filePath(u"informes.db"_s));
    QCOMPARE(Valores(informes, u"select list1 from listadostemporal"_s), QVariantList{u"T2"_s});
    QCOMPARE(QDir(carpeta).entryList({u".productos-demo-*"_s}, QDir::AllEntries | QDir::Hidden),
             QStringList());
  }

  void carpetaImposible() {
    QTemporaryDir otro;
    const QString archivo = QDir(otro.path()).filePath(u"no-es-carpeta"_s);
    QFile f(archivo);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.close();
    const ResultadoDemo r = CrearInstalacionDemo({archivo});
    QVERIFY(!r.creada);
    QCOMPARE(r.mensaje, u"No se puede crear la carpeta %1."_s.arg(archivo));
  }

  void ordenDeConsola() {
    QTemporaryDir otro;
    const QString carpeta = QDir(otro.path()).filePath(u"nueva"_s);
    QProcess p;
    p.start(QStringLiteral(PRODUCTOS_DEMO), {carpeta});
    QVERIFY(p.waitForFinished());
    QCOMPARE(p.exitCode(), 0);
    QVERIFY(QString::fromUtf8(p.readAllStandardOutput()).contains(u"creada"_s));
    p.start(QStringLiteral(PRODUCTOS_DEMO), {carpeta});
    QVERIFY(p.waitForFinished());
    QCOMPARE(p.exitCode(), 1);
    p.start(QStringLiteral(PRODUCTOS_DEMO), {});
    QVERIFY(p.waitForFinished());
    QCOMPARE(p.exitCode(), 2);
    QVERIFY(QString::fromUtf8(p.readAllStandardError()).contains(u"Uso: productos-demo"_s));
  }
};

QTEST_MAIN(TestInstalacionDemo)
#include "test_instalacion_demo.moc"
