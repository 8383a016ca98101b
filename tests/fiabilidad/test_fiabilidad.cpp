// Short by default; PRODUCTOS_FIABILIDAD=larga runs the long form. "--terminal": one terminal.
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlQuery>
#include <QTest>
#include <cstdio>

#include "codigos_producto.h"
#include "error_bd.h"
#include "grabacion_producto.h"
#include "motores_prueba.h"
#include "postgres_nativo.h"
#include "proveedores_producto.h"
#include "recordset.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const bool kLarga = qEnvironmentVariable("PRODUCTOS_FIABILIDAD") == u"larga"_s;

ProductoFormulario Producto(const QString& nombre) {
  ProductoFormulario p;
  p.nombre = nombre;
  p.coste = p.iva = p.stockMinimo = p.stockActual = p.descNumerica = u"1"_s;
  p.unidadMedida = u"Unidades"_s;
  p.optBarra = p.optVenta = true;
  p.proveedores = {LineaProveedor(u"Uno"_s, u"P01"_s)};
  return p;
}

// Saves n new products, a '.' after each, then prints how many were saved and refused.
int Terminal(const QString& carpeta, int n) {
  DialogosGuion dialogos;
  Entorno entorno(Instalacion::Cargar(carpeta), dialogos);
  entorno.ConexionBD->abrir(kCadenaVelandria, entorno.instalacion.origenes);
  int grabados = 0, rechazados = 0;
  for (int i = 0; i < n; ++i) {
    const QString nombre = u"T%1-%2"_s.arg(QCoreApplication::applicationPid()).arg(i);
    (GrabarProductoNuevo(entorno, Producto(nombre)) ? grabados : rechazados)++;
    std::fputc('.', stdout);
    std::fflush(stdout);
  }
  std::printf("\n%d %d\n", grabados, rechazados);
  return 0;
}

QProcess* LanzarTerminal(const QStringList& argumentos, QObject* padre) {
  auto* p = new QProcess(padre);
  p->start(QCoreApplication::applicationFilePath(), QStringList{u"--terminal"_s} + argumentos);
  return p;
}

// What saves must never leave: a product without stock row or link, or the reverse; a code twice.
QStringList Violaciones(Conexion& c) {
  const auto codigos = [&](const QString& tabla, const QString& columna) {
    QList<qint64> l;
    for (const QVariantList& f : FilasDe(c, u"select %1 from %2"_s.arg(columna, tabla)))
      l.append(f.value(0).toLongLong());
    std::sort(l.begin(), l.end());
    return l;
  };
  const QList<qint64> productos = codigos(u"productos"_s, u"codigo"_s);
  QStringList v;
  for (qsizetype i = 0; i < productos.size(); ++i) {
    if (productos[i] != i + 1)
      return v << u"código repetido o hueco en los códigos"_s;
  }
  if (codigos(u"stock"_s, u"producto"_s) != productos)
    v << u"stock sin producto o producto sin stock"_s;
  if (codigos(u"productoproveedor"_s, u"producto"_s) != productos)
    v << u"enlace sin producto o producto sin enlace"_s;
  return v;
}

QList<QList<QVariantList>> Contenido(Conexion& c) {
  QList<QList<QVariantList>> tablas;
  for (const Tabla& t : TablasPrincipales())
    tablas.append(FilasDe(c, u"select * from "_s + t.nombre));
  return tablas;
}

// Values that close a statement's quotes and run one of their own, however an engine reads text.
QStringList Fragmentos(int n) {
  QStringList f{u"'||$a?'$a$; delete from stock; --"_s, u"'||$€$'$€$; delete from stock; --"_s,
                u"' --\r; delete from stock; --"_s};
  const QStringList piezas =
      u"'§'||§' §')§E'§e'\\'§U&'§U&'\\0027§$$§$a$§$€$§$ñ$§$_1$§$a?§$1§?§:n§@x§/*§*/§/* /* */§--§"
      "\\§\\'§''§\"§[§]§`§\n§\r§\r\n§ §;"_s.split(u'§');
  const QStringList cargas =
      u"; delete from stock; --§;delete from stock§; drop table stock; --§; update productos set "
      "borrar = -1; --§; insert into stock (producto) values (999) --"_s.split(u'§');
  QRandomGenerator azar(20261122);
  const auto algunas = [&](int minimo, int mas) {
    QString s;
    for (int k = minimo + azar.bounded(mas); k > 0; --k)
      s += piezas.at(azar.bounded(piezas.size()));
    return s;
  };
  while (f.size() < n)
    f.append(algunas(1, 4) + cargas.at(azar.bounded(cargas.size())) + algunas(0, 3));
  return f;
}

}  // namespace

class TestFiabilidad : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { motores_ = std::make_unique<MotoresPrueba>(); }
  void valoresHostilesNoEjecutanOtraSentencia_data() { MotoresPrueba::agregarFilas(); }
  void valoresHostilesNoEjecutanOtraSentencia();
  void enterosFueraDeRangoSeRechazanSinEscribir_data();
  void enterosFueraDeRangoSeRechazanSinEscribir();
  void terminalesALaVezGuardanTodoSinChoques_data();
  void terminalesALaVezGuardanTodoSinChoques();
  void matarDuranteGrabacionesDejaLaBaseIntegra();
  void registroNoEscribibleNoDetieneNada();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

// Every fragment into the name and barcode checks and the search: no table may change.
void TestFiabilidad::valoresHostilesNoEjecutanOtraSentencia() {
  QFETCH(QString, motor);
  InstalacionPrueba prueba;
  Conexion& c = prueba.conexion();
  ABRIR_NUEVA(*motores_, c, motor);
  c.ejecutar(
      u"insert into productos (codigo, nombre, codigobarras, borrar) values ('1', 'Caña', "
      "'84', 0)"_s);
  c.ejecutar(u"insert into stock (producto, stock) values (1, 5)"_s);
  const QList<QList<QVariantList>> antes = Contenido(c);
  const QStringList fragmentos = Fragmentos(kLarga ? 20000 : 600);
  int rechazadas = 0, motorRechaza = 0;
  for (const QString& f : fragmentos) {
    bcomprobarSiExisteNombre(prueba.entorno(), f, 1);
    existeCodBarras(prueba.entorno(), f, 1);
    const QString busqueda =
        u"Select * from Productos  where codigo <> null and borrar = 0 and "
        "Nombre like '"_s +
        f + u"%' order by nombre"_s;
    try {
      c.consultar(busqueda);
    } catch (const ErrorBD&) {
      ++rechazadas;
    }
    if (!kLarga)
      continue;  // what the engines refuse on their own is measured by the long form only
    const QString texto = AdaptarSentencia(busqueda, c.motor());
    try {
      if (EsPostgresNativo(c.bd()))
        EjecutarEnPostgres(c.bd(), texto);
      else if (!QSqlQuery(c.bd()).exec(texto))
        ++motorRechaza;
    } catch (const ErrorBD&) {
      ++motorRechaza;
    }
  }
  QCOMPARE(Contenido(c), antes);
  qInfo("%s: %lld sentencias, %lld rechazadas; sin la guarda, el motor rechaza %d de %lld",
        qPrintable(motor), 3 * fragmentos.size(), rechazadas + prueba.log().count("\r\n"),
        motorRechaza, fragmentos.size());
}

void TestFiabilidad::enterosFueraDeRangoSeRechazanSinEscribir_data() {
  QTest::addColumn<QString>("tabla");
  QTest::addColumn<QString>("campo");
  QTest::addColumn<QVariant>("valor");
  QTest::newRow("int64") << u"productos"_s << u"Orden"_s << QVariant(4294967397LL);
  QTest::newRow("texto") << u"stock"_s << u"Producto"_s << QVariant(u"2147483648"_s);
  QTest::newRow("real") << u"menu_productos"_s << u"orden"_s << QVariant(-2147483649.0);
}

// An integer beyond 32 bits is refused with its message; a save that meets one writes nothing.
void TestFiabilidad::enterosFueraDeRangoSeRechazanSinEscribir() {
  QFETCH(QString, tabla);
  QFETCH(QString, campo);
  QFETCH(QVariant, valor);
  InstalacionPrueba prueba;
  Recordset rs(prueba.conexion(), u"select * from "_s + tabla);
  rs.addNew();
  QCOMPARE(ErrorDe([&] { rs.setField(campo, valor); }),
           u"El valor «%1» no es válido para el campo %2"_s.arg(valor.toString(), campo));
  ProductoFormulario p = Producto(u"Grande"_s);
  p.descNumerica = u"4294967397"_s;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::nullopt);
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre, borrar) values ('4294967296', 'X', 0)"_s});
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), Producto(u"Siguiente"_s)), std::nullopt);
  QCOMPARE(prueba.filas(u"select count(*) from productos"_s), (QList<QVariantList>{{1}}));
  QCOMPARE(prueba.filas(u"select count(*) from stock"_s), (QList<QVariantList>{{0}}));
  QCOMPARE(prueba.log(), QByteArray("Productos  7, Descripcion: El valor \xAB"
                                    "4294967397\xBB no es v\xE1lido para el campo DescNumerica\r\n"
                                    "Productos  7, Descripcion: El valor \xAB"
                                    "4294967297\xBB no es v\xE1lido para el campo Producto\r\n"));
  QCOMPARE(ValEntero(u"&HFFFFFFFFFFFFFFFFFFFF"), std::nullopt);
}

void TestFiabilidad::terminalesALaVezGuardanTodoSinChoques_data() {
  QTest::addColumn<QString>("motor");
  QTest::newRow("sqlite") << u"sqlite"_s;
  QTest::newRow("postgresql") << u"postgresql"_s;
}

// Ten terminal processes create products at once: every save kept whole, under consecutive codes.
void TestFiabilidad::terminalesALaVezGuardanTodoSinChoques() {
  QFETCH(QString, motor);
  const int terminales = 10, n = kLarga ? 200 : 10;
  InstalacionPrueba otra;  // the terminals read its productos.ini
  if (motor == u"postgresql"_s)
    QVERIFY(motores_->postgres() && otra.usarPostgres(*motores_->postgres(), u"terminales"_s));
  Conexion& c = otra.conexion();
  const qint64 ofrecido = CodigoProductoNuevo(c);  // at "Nuevo", before the ten save
  QList<QProcess*> procesos;
  for (int i = 0; i < terminales; ++i)
    procesos.append(LanzarTerminal({otra.carpeta(), QString::number(n)}, this));
  int grabados = 0, rechazados = 0;
  for (QProcess* p : procesos) {
    QVERIFY(p->waitForFinished(600000));
    const QStringList cifras = QString::fromUtf8(p->readAllStandardOutput()).split(u'\n');
    QVERIFY2(cifras.size() >= 2, p->readAllStandardError().constData());
    grabados += cifras.at(1).section(u' ', 0, 0).toInt();
    rechazados += cifras.at(1).section(u' ', 1, 1).toInt();
  }
  QVERIFY2(rechazados == 0, otra.log().constData());
  QCOMPARE(grabados, terminales * n);
  QCOMPARE(Violaciones(c), QStringList());
  qInfo("%s: %d terminales x %d: %d grabados, 0 violaciones", qPrintable(motor), terminales, n,
        grabados);
  // Its suppliers, accepted now, go under the next free code, not onto the saved product 1.
  QCOMPARE(GuardarProveedoresProductoNuevo(otra.entorno(), ofrecido,
                                           {LineaProveedor(u"Dos"_s, u"P02"_s)}),
           std::optional<qint64>(grabados + 1));
  QCOMPARE(FilasDe(c, u"select proveedor from productoproveedor where producto = '1'"_s),
           (QList<QVariantList>{{u"P01"_s}}));
}

// A terminal killed (-9) while it saves leaves a sound file and every product whole.
void TestFiabilidad::matarDuranteGrabacionesDejaLaBaseIntegra() {
  InstalacionPrueba inst;
  const int muertes = kLarga ? 100 : 5;
  for (int i = 0; i < muertes; ++i) {
    QProcess* p = LanzarTerminal({inst.carpeta(), u"1000000"_s}, this);
    const int saves = 1 + QRandomGenerator::global()->bounded(8);
    for (qint64 leidos = 0; leidos < saves; leidos += p->readAll().size())
      QVERIFY(p->waitForReadyRead(30000));
    p->kill();
    p->waitForFinished();
    delete p;
    Conexion c;
    c.abrirSQLite(inst.rutaPrincipal());
    QCOMPARE(FilasDe(c, u"pragma integrity_check"_s), (QList<QVariantList>{{u"ok"_s}}));
    QCOMPARE(Violaciones(c), QStringList());
  }
  qInfo("sqlite: %d kill -9 durante grabaciones, %s productos grabados, 0 violaciones", muertes,
        qPrintable(inst.filas(u"select count(*) from productos"_s)[0][0].toString()));
}

// A log that cannot be written stops nothing: each error is shown, the manager told once.
void TestFiabilidad::registroNoEscribibleNoDetieneNada() {
  InstalacionPrueba sinLog;
  QVERIFY(QDir(sinLog.carpeta()).mkdir(u"Errores.log"_s));
  sinLog.entorno().RegistrarError(u"opciones  1"_s, u"uno"_s);
  sinLog.entorno().RegistrarError(u"opciones  1"_s, u"dos"_s);
  QCOMPARE(sinLog.erroresMostrados().size(), 2);
  QCOMPARE(sinLog.dialogos().mensajes(),
           QStringList{u"No se puede escribir en el registro de errores %1: %2"_s.arg(
               QDir(sinLog.carpeta()).filePath(u"Errores.log"_s), u"Is a directory"_s)});
  QCOMPARE(sinLog.dialogos().llamadas().first().icono, ServicioDialogos::Icono::Critico);
}

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  if (argc > 1 && qstrcmp(argv[1], "--terminal") == 0)
    return Terminal(app.arguments().at(2), app.arguments().at(3).toInt());
  TestFiabilidad t;
  return QTest::qExec(&t, argc, argv);
}

#include "test_fiabilidad.moc"
