#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "dialogos_qt.h"
#include "error_bd.h"
#include "instalacion_prueba.h"
#include "postgres_prueba.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

// The start-up: program type, main connection, the session's options, the error log and help.
class TestArranque : public QObject {
  Q_OBJECT
 private slots:
  void cadenaYFotosDeLaBase();
  void abrirConexionReintentaUnaVez();
  void mainLeeLaSesion();
  void mainSegunElTipoDePrograma();
  void opcionesQueFaltan();
  void ayudaLocalWebODireccion();
  void registroDeErrores();
  void dialogos();
};

namespace {

void TipoPrograma(InstalacionPrueba& p, const QString& tipo) {
  p.ejecutarEnInformes({u"insert into listadostemporal (tipoPrograma, list1, list2) values ('"_s +
                        tipo + u"', 'T1', 'INST1')"_s});
}

}  // namespace

void TestArranque::cadenaYFotosDeLaBase() {
  for (const auto& [tipo, cadena] :
       {std::pair(u"RESTAURANTE"_s, kCadenaVelandria),
        std::pair(u"FASTFOOD"_s, u"dsn=lumbraFastFood;pwd=KorvanitesX%QQRT;"_s),
        std::pair(u"COPAS"_s, u"dsn=lumbraCopas;pwd=KorvanitesX%QQRT;"_s),
        std::pair(u"Restaurante"_s, QString()), std::pair(QString(), QString())})
    QCOMPARE(CadenaConexion(tipo), cadena);
  bool otra = false;
  const QString sep = QDir::separator();
  QCOMPARE(RutaFotosDeBase(u"D:\\Datos\\velandria"_s, &otra), u"D:\\Datos\\fotos"_s + sep);
  QVERIFY(otra);
  QCOMPARE(RutaFotosDeBase(u"c:\\x\\velandria"_s, &otra), QString());
  QVERIFY(!otra);
  QCOMPARE(RutaFotosDeBase(u"/srv/tpv/VELANDRIA"_s, &otra), u"/srv/tpv/fotos"_s + sep);
  QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, RutaFotosDeBase(u"/srv/tpv/caja"_s, &otra));
}

// One retry on a fresh connection object; only a second failure is logged (and shown).
void TestArranque::abrirConexionReintentaUnaVez() {
  for (int fallos : {0, 1, 2}) {
    InstalacionPrueba p;
    p.entorno().sesion.TipoProgramaInformes = u"RESTAURANTE"_s;
    QList<const Conexion*> objetos;
    AbrirConexion(p.entorno(), [&](Conexion& c, const QString& cadena) {
      QCOMPARE(cadena, kCadenaVelandria);
      objetos.append(&c);
      if (objetos.size() <= fallos)
        throw ErrorBD(u"ocupado"_s);
      c.abrir(cadena, p.entorno().instalacion.origenes);
    });
    QCOMPARE(objetos.size(), std::min(fallos + 1, 2));
    QCOMPARE(p.entorno().ConexionBD->abierta(), fallos < 2);
    QCOMPARE(p.log(), fallos < 2 ? QByteArray() : "Base de datos  16, Descripcion: ocupado\r\n");
    QCOMPARE(p.erroresMostrados().size(), fallos / 2);
  }
}

void TestArranque::mainLeeLaSesion() {
  InstalacionPrueba p;
  TipoPrograma(p, u"RESTAURANTE"_s);
  p.ejecutar(
      {u"insert into opciones (identificador, idioma, tipo_programa, numDecimales, "
       "rutaFotos, modocaja, animacioncaja, Terminal) values ('INST1', '', 'COPAS', 2, "
       "'fotos', null, -1, 'T9'), ('OTRA', 'INGLES', null, 3, null, 2, 0, null)"_s,
       u"insert into opciones_terminal (identificador, empleado, id_color) values "
       "('INST1T1', null, 3)"_s});
  bool mostrado = false;
  Main(p.entorno(), [&] { mostrado = true; });
  QVERIFY(mostrado);
  const Sesion& s = p.entorno().sesion;
  QCOMPARE(
      QStringList({s.IdentificadorInstalacion, s.IdentificadorLista1, s.IdentificadorTerminal,
                   s.TipoProgramaInformes, s.tipo_programa, s.idioma, s.rutaFotos, s.RutaFotosBD}),
      QStringList({u"INST1"_s, u"T1"_s, u"INST1T1"_s, u"RESTAURANTE"_s, u"COPAS"_s, u"CASTELLANO"_s,
                   QDir(p.carpeta()).filePath(u"fotos"_s),
                   QDir(p.carpeta()).absolutePath() + u"/fotos"_s + QDir::separator()}));
  QVERIFY(s.BDEnOtraUnidad && s.animacioncaja && s.ColorPanelFamilias);
  // The two readers of the same column keep their own defaults for a null employee.
  QCOMPARE(QList<int>({s.ModoPrograma, s.numDecimales, s.modocaja, s.EmpleadoActual,
                       s.EmpleadoTerminal, s.id_color}),
           QList<int>({-1, 2, 1, -1, 0, 3}));
  // With modocaja 1 the missing fixed option is created as true.
  QCOMPARE(p.filas(u"select indice, daton from relaciones_fijas"_s),
           (QList<QVariantList>{{u"opcion_color_panel_familias"_s, -1}}));
  QVERIFY(p.log().isEmpty());

  // No row of options: not even the default language, no decimals; a stored fixed option read.
  InstalacionPrueba q;
  TipoPrograma(q, u"RESTAURANTE"_s);
  q.ejecutar({u"insert into relaciones_fijas values ('opcion_color_panel_familias', 0)"_s});
  Main(q.entorno(), [] {});
  const Sesion& t = q.entorno().sesion;
  QCOMPARE(std::tuple(t.idioma, t.ColorPanelFamilias, t.numDecimales),
           std::tuple(QString(), false, qint16(0)));
}

// "fastfood" opens nothing and goes on; FASTFOOD opens its source; COPAS on another file ends.
void TestArranque::mainSegunElTipoDePrograma() {
  InstalacionPrueba p;
  TipoPrograma(p, u"fastfood"_s);
  bool mostrado = false;
  Main(p.entorno(), [&] { mostrado = true; });
  QVERIFY(mostrado);
  QCOMPARE(p.entorno().sesion.ModoPrograma, qint16(-1));
  const QList<QByteArray> lineas = p.log().split('\n');
  QCOMPARE(lineas.size(), 3);
  QVERIFY(lineas.at(0).startsWith("Base de datos  16, Descripcion: "));
  QVERIFY(lineas.at(1).startsWith("opciones  1, Descripcion: "));

  for (const auto& [tipo, origen, modo] : {std::tuple(u"FASTFOOD"_s, u"lumbraFastFood"_s, 1),
                                           std::tuple(u"COPAS"_s, u"lumbraCopas"_s, 4)}) {
    InstalacionPrueba q;
    TipoPrograma(q, tipo);
    OrigenDatos archivo;
    archivo.tipo = OrigenDatos::Tipo::SQLite;
    archivo.archivo = q.rutaPrincipal() + (modo == 4 ? u".copia.db"_s : QString());
    QVERIFY(modo == 1 || QFile::copy(q.rutaPrincipal(), archivo.archivo));
    q.entorno().instalacion.origenes.mapear(origen, archivo);
    if (modo == 4)
      QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Main(q.entorno(), [] { QFAIL("shown"); }));
    else
      Main(q.entorno(), [] {});
    QCOMPARE(q.entorno().sesion.ModoPrograma, qint16(modo));
    QVERIFY(q.entorno().ConexionBD->abierta() && q.log().isEmpty());
  }
}

// Options that cannot be read are logged and keep their defaults; other columns still read.
void TestArranque::opcionesQueFaltan() {
  InstalacionPrueba p;
  TipoPrograma(p, u"RESTAURANTE"_s);
  p.ejecutar({u"drop table opciones"_s});
  Main(p.entorno(), [] {});
  QCOMPARE(p.log(), "opciones  1, Descripcion: no such table: opciones\r\n");
  QCOMPARE(p.entorno().sesion.modocaja, qint16(1));
  QCOMPARE(p.erroresMostrados().first().first, u"opciones  1"_s);

  p.ejecutar(
      {u"create table opciones (identificador text, idioma text, tipo_programa text, "
       "rutaFotos text, modocaja integer, animacioncaja integer)"_s,
       u"insert into opciones values ('INST1', 'INGLES', 'COPAS', '/fotos/', 2, -1)"_s});
  LeerOpciones(p.entorno());
  const Sesion& s = p.entorno().sesion;
  QCOMPARE(QStringList({s.tipo_programa, s.rutaFotos, s.idioma}),
           QStringList({u"COPAS"_s, u"/fotos/"_s, u"INGLES"_s}));
  QCOMPARE(s.modocaja, qint16(2));
  QVERIFY(s.animacioncaja);
  QCOMPARE(p.erroresMostrados().size(), 1);
}

void TestArranque::ayudaLocalWebODireccion() {
  InstalacionPrueba p;
  p.entorno().instalacion.ayudaWeb = u"https://ayuda.productos.invalid/"_s;
  QVERIFY(QDir(p.carpeta()).mkdir(u"ayuda"_s));
  QFile pagina(QDir(p.carpeta()).filePath(u"ayuda/A_Productos.html"_s));
  QVERIFY(pagina.open(QIODevice::WriteOnly));
  for (const QString& a : {u"A_Buscar.html"_s, u"A_Productos.html"_s,
                           u"http://www.ejemplo.invalid/x.html"_s, QString()})
    AbrirAyuda(p.entorno(), a);
  QStringList abiertos;
  for (const auto& llamada : p.dialogos().llamadasDe(u"abrirDocumento"_s))
    abiertos << llamada.texto;
  QCOMPARE(abiertos, QStringList({u"https://ayuda.productos.invalid/A_Buscar.html"_s,
                                  pagina.fileName(), u"http://www.ejemplo.invalid/x.html"_s}));
  // Nothing to open it with: the manager is told, and the log says which page.
  p.dialogos().abrirDocumentos(false);
  AbrirAyuda(p.entorno(), u"A_Productos.html"_s);
  const QString aviso =
      u"No se ha podido abrir la ayuda: no hay un navegador instalado que la muestre."_s;
  QCOMPARE(p.dialogos().mensajes().last(), aviso + u"\r\n"_s + pagina.fileName());
  QCOMPARE(p.log(),
           (u"Ayuda  1, Descripcion: "_s + aviso + u' ' + pagina.fileName()).toLatin1() + "\r\n");
}

// Each entry is one line in the ANSI code page, appended, and shown once it is written.
void TestArranque::registroDeErrores() {
  QTemporaryDir dir;
  QStringList vistos;
  RegistroErrores registro(dir.path(), [&](const QString& c, const QString& d) {
    QFile f(dir.filePath(u"Errores.log"_s));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QVERIFY(f.readAll().endsWith("\r\n"));
    vistos.append(c + u'|' + d);
  });
  registro.RegistrarError(u"opciones  1"_s, u"X"_s);
  registro.RegistrarError(u"Base de datos  16"_s, u"Último acceso € — ok ☃\r\n  LINE 1"_s);
  QFile f(registro.rutaLog());
  QVERIFY(f.open(QIODevice::ReadOnly));
  QCOMPARE(f.readAll(), QByteArray("opciones  1, Descripcion: X\r\nBase de datos  16, "
                                   "Descripcion: \xDAltimo acceso \x80 \x97 ok ? LINE 1\r\n"));
  QCOMPARE(vistos.size(), 2);
  QCOMPARE(vistos.first(), u"opciones  1|X"_s);
}

// Programs found by name without ".exe" in any case; a risky question answers "No" to Enter.
void TestArranque::dialogos() {
  QTemporaryDir proc;
  for (const auto& [pid, linea] : {std::pair("101", QByteArray("/opt/tpv/Tarvelo.exe\0--x\0", 25)),
                                   std::pair("102", QByteArray("tarvelo\0", 8)),
                                   std::pair("103", QByteArray("/usr/bin/TarveloBis\0", 20)),
                                   std::pair("self", QByteArray("Tarvelo\0", 8))}) {
    QDir(proc.path()).mkdir(QString::fromLatin1(pid));
    QFile f(proc.filePath(QString::fromLatin1(pid) + u"/cmdline"_s));
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(linea) == linea.size());
  }
  QList<qint64> pids = ProcesosConNombre(u"TARVELO.EXE"_s, proc.path());
  std::sort(pids.begin(), pids.end());
  QCOMPARE(pids, (QList<qint64>{101, 102}));

  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  DialogosQt qt;
  DialogosGuion guion;
  for (ServicioDialogos* d : std::initializer_list<ServicioDialogos*>{&qt, &guion}) {
    QCOMPARE(d->mensaje(u"¿Borrar?"_s, {}, ServicioDialogos::Icono::Pregunta,
                        ServicioDialogos::Botones::SiNo),
             ServicioDialogos::Respuesta::No);
  }
}

QTEST_MAIN(TestArranque)
#include "test_arranque.moc"
