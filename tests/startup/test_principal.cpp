#include <QDir>
#include <QFile>
#include <QtTest>

#include "error_bd.h"
#include "instalacion_prueba.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

class TestPrincipal : public QObject {
  Q_OBJECT
 private slots:
  void cadenaDeConexionPorTipoDePrograma();
  void rutaDeFotosSegunLaUnidadDeLaBase();
  void abrirConexionReintentaUnaVezYRegistraElSegundoFallo();
  void abrirConexionNoReintentaSiAbreALaPrimera();
  void mainLeeLaSesionEnOrdenConSusValoresPorDefecto();
  void mainSinFilaDeOpcionesNiDeTerminal();
  void mainConTipoDeProgramaEnMinusculasNoAbreBaseYSigue();
  void mainConUnaBaseDeOtroNombreEsUnErrorEnTiempoDeEjecucion();
  void opcionesQueNoSePuedenLeerSeRegistranYSeSigue();
  void unaOpcionQueFaltaNoImpideLeerLasDemas();
  void colorDelPanelDeFamiliasLeidoDeRelacionesFijas();
  void ayudaLocalWebODireccion();
};

namespace {

void PrepararInformes(InstalacionPrueba& p, const QString& tipo) {
  p.ejecutarEnInformes({u"insert into listadostemporal (tipoPrograma, list1, list2) values ('"_s +
                        tipo + u"', 'T1', 'INST1')"_s});
}

}  // namespace

void TestPrincipal::cadenaDeConexionPorTipoDePrograma() {
  QCOMPARE(CadenaConexion(u"RESTAURANTE"_s), u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s);
  QCOMPARE(CadenaConexion(u"FASTFOOD"_s), u"dsn=lumbraFastFood;pwd=KorvanitesX%QQRT;"_s);
  QCOMPARE(CadenaConexion(u"COPAS"_s), u"dsn=lumbraCopas;pwd=KorvanitesX%QQRT;"_s);
  QCOMPARE(CadenaConexion(u"Restaurante"_s), QString());
  QCOMPARE(CadenaConexion(u"copas"_s), QString());
  QCOMPARE(CadenaConexion(QString()), QString());
}

void TestPrincipal::rutaDeFotosSegunLaUnidadDeLaBase() {
  bool otra = false;
  const QString sep = QDir::separator();
  QCOMPARE(RutaFotosDeBase(u"D:\\Datos\\velandria"_s, &otra), u"D:\\Datos\\fotos"_s + sep);
  QVERIFY(otra);
  QCOMPARE(RutaFotosDeBase(u"c:\\x\\velandria"_s, &otra), QString());
  QVERIFY(!otra);
  QCOMPARE(RutaFotosDeBase(u"/srv/tpv/VELANDRIA"_s, &otra), u"/srv/tpv/fotos"_s + sep);
  QVERIFY(otra);
  QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, RutaFotosDeBase(u"/srv/tpv/caja"_s, &otra));
}

void TestPrincipal::abrirConexionReintentaUnaVezYRegistraElSegundoFallo() {
  InstalacionPrueba p;
  p.entorno().sesion.TipoProgramaInformes = u"Restaurante"_s;
  QStringList intentos;
  QList<const Conexion*> objetos;
  AbrirConexion(p.entorno(), [&](Conexion& c, const QString& cadena) {
    intentos.append(cadena);
    objetos.append(&c);
    c.abrir(cadena, p.entorno().instalacion.origenes);
  });
  QCOMPARE(intentos, (QStringList{QString(), QString()}));
  QCOMPARE(objetos.size(), 2);
  const QByteArray log = p.log();
  QVERIFY2(log.startsWith("Base de datos  16, Descripcion: "), log.constData());
  QVERIFY(log.endsWith("\r\n"));
  QCOMPARE(log.count("\r\n"), 1);
  QVERIFY(log.size() > QByteArray("Base de datos  16, Descripcion: \r\n").size());
  QCOMPARE(p.erroresMostrados().size(), 1);
  QVERIFY(!p.entorno().ConexionBD->abierta());
}

void TestPrincipal::abrirConexionNoReintentaSiAbreALaPrimera() {
  InstalacionPrueba p;
  p.entorno().sesion.TipoProgramaInformes = u"RESTAURANTE"_s;
  int intentos = 0;
  bool primero = true;
  AbrirConexion(p.entorno(), [&](Conexion& c, const QString& cadena) {
    ++intentos;
    if (primero) {  // the first attempt fails, the retry opens
      primero = false;
      throw ErrorBD(u"ocupado"_s);
    }
    c.abrir(cadena, p.entorno().instalacion.origenes);
  });
  QCOMPARE(intentos, 2);
  QVERIFY(p.entorno().ConexionBD->abierta());
  QVERIFY(p.log().isEmpty());

  intentos = 0;
  AbrirConexion(p.entorno(), [&](Conexion& c, const QString& cadena) {
    ++intentos;
    c.abrir(cadena, p.entorno().instalacion.origenes);
  });
  QCOMPARE(intentos, 1);
}

void TestPrincipal::mainLeeLaSesionEnOrdenConSusValoresPorDefecto() {
  InstalacionPrueba p;
  PrepararInformes(p, u"RESTAURANTE"_s);
  p.ejecutar(
      {u"insert into opciones (identificador, idioma, tipo_programa, numDecimales, "
       "rutaFotos, modocaja, animacioncaja, Terminal) values ('INST1', '', 'COPAS', 2, "
       "null, null, -1, 'T9')"_s,
       u"insert into opciones (identificador, idioma) values ('OTRA', 'INGLES')"_s,
       u"insert into opciones_terminal (identificador, empleado, id_color) values "
       "('INST1T1', null, 3)"_s});
  bool mostrado = false;
  Main(p.entorno(), [&] { mostrado = true; });
  QVERIFY(mostrado);
  const Sesion& s = p.entorno().sesion;
  QCOMPARE(s.IdentificadorInstalacion, u"INST1"_s);
  QCOMPARE(s.IdentificadorLista1, u"T1"_s);
  QCOMPARE(s.IdentificadorTerminal, u"INST1T1"_s);
  QCOMPARE(s.TipoProgramaInformes, u"RESTAURANTE"_s);
  QCOMPARE(s.ModoPrograma, qint16(-1));
  QVERIFY(s.BDEnOtraUnidad);
  QCOMPARE(s.RutaFotosBD, QDir(p.carpeta()).absolutePath() + u"/fotos"_s + QDir::separator());
  QCOMPARE(s.numDecimales, qint16(2));
  QCOMPARE(s.tipo_programa, u"COPAS"_s);
  QCOMPARE(s.rutaFotos, QString());
  QCOMPARE(s.idioma, u"CASTELLANO"_s);
  QCOMPARE(s.modocaja, qint16(1));
  QVERIFY(s.animacioncaja);
  // With modocaja 1 the missing fixed option is created as true.
  QVERIFY(s.ColorPanelFamilias);
  QCOMPARE(p.filas(u"select indice, daton from relaciones_fijas"_s),
           (QList<QVariantList>{{u"opcion_color_panel_familias"_s, -1}}));
  // The two readers of the same column keep their own defaults for a null employee.
  QCOMPARE(s.EmpleadoActual, -1);
  QCOMPARE(s.EmpleadoTerminal, 0);
  QCOMPARE(s.id_color, qint16(3));
  QVERIFY(p.log().isEmpty());
}

void TestPrincipal::mainSinFilaDeOpcionesNiDeTerminal() {
  InstalacionPrueba p;
  PrepararInformes(p, u"RESTAURANTE"_s);
  p.ejecutar(
      {u"insert into relaciones_fijas (indice, daton) values "
       "('opcion_color_panel_familias', 0)"_s});
  Main(p.entorno(), [] {});
  const Sesion& s = p.entorno().sesion;
  QCOMPARE(s.idioma, QString());  // no row: not even the default language
  QCOMPARE(s.numDecimales, qint16(0));
  QCOMPARE(s.modocaja, qint16(1));
  QVERIFY(!s.ColorPanelFamilias);
  QCOMPARE(s.EmpleadoActual, 0);
  QCOMPARE(s.EmpleadoTerminal, 0);
  QCOMPARE(s.id_color, qint16(0));
}

void TestPrincipal::mainConTipoDeProgramaEnMinusculasNoAbreBaseYSigue() {
  InstalacionPrueba p;
  PrepararInformes(p, u"fastfood"_s);
  bool mostrado = false;
  Main(p.entorno(), [&] { mostrado = true; });
  QVERIFY(mostrado);
  QCOMPARE(p.entorno().sesion.ModoPrograma, qint16(-1));
  // The failed open, then the options that could not be read: nothing else.
  const QList<QByteArray> lineas = p.log().split('\n');
  QCOMPARE(lineas.size(), 3);
  QVERIFY(lineas.at(0).startsWith("Base de datos  16, Descripcion: "));
  QVERIFY(lineas.at(1).startsWith("opciones  1, Descripcion: "));

  InstalacionPrueba q;
  PrepararInformes(q, u"FASTFOOD"_s);
  OrigenDatos rapida;
  rapida.tipo = OrigenDatos::Tipo::SQLite;
  rapida.archivo = q.rutaPrincipal();
  q.entorno().instalacion.origenes.mapear(u"lumbraFastFood"_s, rapida);
  Main(q.entorno(), [] {});
  QCOMPARE(q.entorno().sesion.ModoPrograma, qint16(1));
  QVERIFY(q.entorno().ConexionBD->abierta());
  QVERIFY(q.log().isEmpty());
}

void TestPrincipal::mainConUnaBaseDeOtroNombreEsUnErrorEnTiempoDeEjecucion() {
  InstalacionPrueba p;
  PrepararInformes(p, u"COPAS"_s);
  OrigenDatos copas;
  copas.tipo = OrigenDatos::Tipo::SQLite;
  copas.archivo = p.rutaPrincipal() + u".copia.db"_s;
  QVERIFY(QFile::copy(p.rutaPrincipal(), copas.archivo));
  p.entorno().instalacion.origenes.mapear(u"lumbraCopas"_s, copas);
  bool mostrado = false;
  QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Main(p.entorno(), [&] { mostrado = true; }));
  QVERIFY(!mostrado);
  QCOMPARE(p.entorno().sesion.ModoPrograma, qint16(4));
}

void TestPrincipal::opcionesQueNoSePuedenLeerSeRegistranYSeSigue() {
  InstalacionPrueba p;
  PrepararInformes(p, u"RESTAURANTE"_s);
  p.ejecutar({u"drop table opciones"_s});
  bool mostrado = false;
  Main(p.entorno(), [&] { mostrado = true; });
  QVERIFY(mostrado);
  QVERIFY(p.log().startsWith("opciones  1, Descripcion: no such table: opciones"));
  QCOMPARE(p.entorno().sesion.modocaja, qint16(1));
  QCOMPARE(p.erroresMostrados().first().first, u"opciones  1"_s);
}

void TestPrincipal::unaOpcionQueFaltaNoImpideLeerLasDemas() {
  InstalacionPrueba p;
  PrepararInformes(p, u"RESTAURANTE"_s);
  // An installation whose opciones lacks Terminal and numDecimales.
  p.ejecutar({u"drop table opciones"_s,
              u"create table opciones (identificador text, idioma text, tipo_programa text, "
              "rutaFotos text, modocaja integer, animacioncaja integer)"_s,
              u"insert into opciones values ('INST1', 'INGLES', 'COPAS', '/fotos/', 2, -1)"_s});
  Main(p.entorno(), [] {});
  const Sesion& s = p.entorno().sesion;
  QCOMPARE(s.numDecimales, qint16(0));
  QCOMPARE(s.tipo_programa, u"COPAS"_s);
  QCOMPARE(s.rutaFotos, u"/fotos/"_s);
  QCOMPARE(s.idioma, u"INGLES"_s);
  QCOMPARE(s.modocaja, qint16(2));
  QVERIFY(s.animacioncaja);
  QVERIFY(p.log().isEmpty());
}

void TestPrincipal::colorDelPanelDeFamiliasLeidoDeRelacionesFijas() {
  InstalacionPrueba p;
  p.ejecutar(
      {u"insert into relaciones_fijas (indice, daton) values "
       "('opcion_color_panel_familias', -1)"_s});
  p.entorno().sesion.modocaja = 0;
  LeerColorPanelFamilias(p.entorno());
  QVERIFY(p.entorno().sesion.ColorPanelFamilias);

  InstalacionPrueba q;
  q.entorno().sesion.modocaja = 2;
  LeerColorPanelFamilias(q.entorno());
  QVERIFY(!q.entorno().sesion.ColorPanelFamilias);
  QCOMPARE(q.filas(u"select daton from relaciones_fijas"_s), (QList<QVariantList>{{0}}));
}

void TestPrincipal::ayudaLocalWebODireccion() {
  InstalacionPrueba p;
  p.entorno().instalacion.ayudaWeb = u"https://ayuda.productos.invalid/"_s;
  AbrirAyuda(p.entorno(), u"A_Buscar.html"_s);
  QVERIFY(QDir(p.carpeta()).mkdir(u"ayuda"_s));
  QFile pagina(QDir(p.carpeta()).filePath(u"ayuda/A_Productos.html"_s));
  QVERIFY(pagina.open(QIODevice::WriteOnly));
  pagina.close();
  AbrirAyuda(p.entorno(), u"A_Productos.html"_s);
  AbrirAyuda(p.entorno(), u"http://www.ejemplo.invalid/x.html"_s);
  AbrirAyuda(p.entorno(), QString());
  const auto llamadas = p.dialogos().llamadasDe(u"abrirDocumento"_s);
  QCOMPARE(llamadas.size(), 3);
  QCOMPARE(llamadas.at(0).texto, u"https://ayuda.productos.invalid/A_Buscar.html"_s);
  QCOMPARE(llamadas.at(1).texto, QDir(p.carpeta()).filePath(u"ayuda/A_Productos.html"_s));
  QCOMPARE(llamadas.at(2).texto, u"http://www.ejemplo.invalid/x.html"_s);
}

QTEST_MAIN(TestPrincipal)
#include "test_principal.moc"
