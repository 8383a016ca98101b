#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "instalacion_prueba.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

// productos-demo builds an installation the program starts on without an error, with data.
class TestDemo : public QObject {
  Q_OBJECT
 private slots:
  void instalacionQueElProgramaLee();
};

void TestDemo::instalacionQueElProgramaLee() {
  QTemporaryDir dir;
  const QString carpeta = dir.filePath(u"demo"_s);
  QProcess demo;
  demo.start(QStringLiteral(PRODUCTOS_DEMO), {carpeta});
  QVERIFY(demo.waitForFinished(60000));
  QCOMPARE(demo.exitCode(), 0);
  demo.start(QStringLiteral(PRODUCTOS_DEMO), {carpeta});  // an installation is not overwritten
  QVERIFY(demo.waitForFinished(60000));
  QCOMPARE(demo.exitCode(), 1);
  QVERIFY(demo.readAllStandardError().contains("--reemplazar"));

  DialogosGuion dialogos;
  Entorno entorno(Instalacion::Cargar(carpeta), dialogos);
  QStringList errores;
  entorno.registro.setMostrar([&](const QString& c, const QString& d) { errores << c + d; });
  Main(entorno, [] {});
  QVERIFY2(errores.isEmpty(), qPrintable(errores.join(u'\n')));
  const Sesion& s = entorno.sesion;
  QCOMPARE(QStringList({s.IdentificadorTerminal, s.tipo_programa, s.idioma}),
           QStringList({u"INST1T1"_s, u"RESTAURANTE"_s, u"CASTELLANO"_s}));
  QCOMPARE(QList<int>({s.numDecimales, s.EmpleadoActual, s.id_color, s.ColorPanelFamilias}),
           QList<int>({2, 1, 1, 1}));
  Conexion& c = *entorno.ConexionBD;
  const auto cuenta = [&](const QString& desde) {
    return FilasDe(c, u"select count(*) from "_s + desde).first().first().toInt();
  };
  QCOMPARE(cuenta(u"seccion where menu = 0 and borrar = 0"_s), 10);
  QVERIFY(cuenta(u"productos where borrar = 0"_s) >= 60);
  // Every live product is whole and priced by the form's rule: (cost + margin) x (1 + IVA/100).
  QCOMPARE(
      cuenta(
          u"productos p where borrar = 0 and (not exists (select * from stock s where "
          "s.producto = val(p.codigo)) or not exists (select * from productoproveedor pp "
          "where pp.producto = p.codigo and pp.proveedor = p.proveedor) or (tipoprod <> 3 "
          "and precio > 0 and abs((coste + margencomercial) * (1 + iva / 100) - precio) > 0.01))"_s),
      0);
  QVERIFY(cuenta(u"colores where id_color in (select id_color from opciones_terminal)"_s) >= 2);
  QCOMPARE(FilasDe(c, u"select traduccion from traducciones where caption = 'Nuevo'"_s),
           QList<QVariantList>{{u"New"_s}});
  for (const QString& pagina : {u"A_Productos.html"_s, u"A_ProductosElaborados.html"_s,
                                u"A_Buscar.html"_s, u"A_SubProductos.html"_s}) {
    AbrirAyuda(entorno, pagina);
    const QString abierta = dialogos.llamadas().last().texto;
    QCOMPARE(abierta, QDir(carpeta).filePath(u"ayuda/"_s + pagina));
    QFile f(abierta);
    QVERIFY(f.open(QIODevice::ReadOnly) && f.readAll().contains("</html>"));
  }
  QStringList fotos{u"defecto.gif"_s};
  for (const QVariantList& f : FilasDe(c,
                                       u"select imagen from seccion union select foto from "
                                       "productos where foto is not null"_s))
    fotos << f.first().toString();
  QVERIFY(fotos.size() > 40);
  for (const QString& foto : fotos) {
    QImageReader lector(s.rutaFotos + foto);
    QCOMPARE(lector.read().size(), QSize(160, 160));
  }
}

QTEST_MAIN(TestDemo)
#include "test_demo.moc"
