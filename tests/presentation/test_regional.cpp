#include <QDate>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QtTest>

#include "color_vb.h"
#include "config_regional.h"
#include "filtro_decimal.h"
#include "instalacion_prueba.h"
#include "utilidades.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale kEspana(QLocale::Spanish, QLocale::Spain);
const QLocale kEEUU(QLocale::English, QLocale::UnitedStates);

}  // namespace

// The regional settings, the amount fields' key filter, and the small services of the forms.
class TestRegional : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QLocale::setDefault(QLocale::c()); }

  void filtraLasTeclasDeImportes_data() {
    QTest::addColumn<QString>("separador");
    QTest::addColumn<int>("tecla");
    QTest::addColumn<QString>("texto");  // "#" stands for the separator
    QTest::addColumn<int>("decimales");
    QTest::addColumn<int>("resultado");
    for (const QString& s : {u","_s, u"."_s}) {
      const int sep = s.at(0).unicode();
      const auto fila = [&](const char* caso, int tecla, const QString& texto, int decimales,
                            int resultado) {
        QTest::addRow("%s %s", qPrintable(s), caso)
            << s << tecla << texto << decimales << resultado;
      };
      fila("Enter se traga", 13, u"12"_s, 2, 0);
      fila("Retroceso pasa", 8, u"3#25"_s, 2, 8);
      fila("digito en vacio", '0', QString(), 0, '0');
      fila("separador tras digito", sep, u"12"_s, 2, sep);
      fila("separador primero", sep, QString(), 2, 0);
      fila("separador sin decimales", sep, u"12"_s, 0, 0);
      fila("segundo separador", sep, u"1#"_s, 2, 0);
      fila("segundo decimal", '5', u"3#2"_s, 2, '5');
      fila("decimales completos", '1', u"3#25"_s, 2, 0);
      fila("sin decimales y con separador", '4', u"1#"_s, 0, 0);
      for (const int otra :
           {int('a'), int('-'), int('+'), int(' '), 3, 22})  // letters, signs, copy and paste
        fila(qPrintable(u"tecla %1"_s.arg(otra)), otra, u"1"_s, 2, 0);
    }
    // "." types the comma where the comma is the separator; "," is not a "." elsewhere.
    QTest::newRow("el punto es coma") << u","_s << 46 << u"1"_s << 2 << 44;
    QTest::newRow("punto primero") << u","_s << 46 << QString() << 2 << 0;
    QTest::newRow("punto tras decimales") << u","_s << 46 << u"1,25"_s << 2 << 0;
    QTest::newRow("la coma no es punto") << u"."_s << 44 << u"1"_s << 2 << 0;
  }
  void filtraLasTeclasDeImportes() {
    QFETCH(QString, separador);
    QFETCH(int, tecla);
    QFETCH(QString, texto);
    QFETCH(int, decimales);
    QFETCH(int, resultado);
    texto.replace(u'#', separador);
    QCOMPARE(FiltrarTeclaDecimal(tecla, texto, decimales, separador), resultado);
  }

  void leeElLocale() {
    QLocale::setDefault(kEspana);
    QCOMPARE((QStringList{SeparadorDecimal(), LeerLocale(14), LeerLocale(15), LeerLocale(29),
                          LeerLocale(12), LeerLocale(999)}),
             (QStringList{u","_s, u","_s, u"."_s, u"/"_s, u";"_s, QString()}));
    QLocale::setDefault(kEEUU);
    QCOMPARE((QStringList{SeparadorDecimal(), LeerLocale(15), LeerLocale(81)}),
             (QStringList{u"."_s, u","_s, u"-"_s}));
  }

  void formateaYLeeImportes_data() {
    QTest::addColumn<bool>("espana");
    QTest::addColumn<double>("valor");
    QTest::addColumn<QString>("texto");
    QTest::newRow("miles") << true << 1234.5 << u"1.234,50"_s;
    QTest::newRow("cero a la izquierda") << true << 0.5 << u"0,50"_s;
    QTest::newRow("negativo") << true << -0.5 << u"-0,50"_s;
    QTest::newRow("millones") << true << 1234567.891 << u"1.234.567,89"_s;
    QTest::newRow("redondeo") << true << 999.999 << u"1.000,00"_s;
    QTest::newRow("cero") << true << 0.0 << u"0,00"_s;
    QTest::newRow("EEUU") << false << -12345.5 << u"-12,345.50"_s;
  }
  void formateaYLeeImportes() {
    QFETCH(bool, espana);
    QFETCH(double, valor);
    QFETCH(QString, texto);
    QLocale::setDefault(espana ? kEspana : kEEUU);
    QCOMPARE(FormatearImporte(valor), texto);
    bool ok = false;
    QCOMPARE(ConvertirImporte(texto, &ok), std::round(valor * 100) / 100);
    QVERIFY(ok);
  }

  void convierteImportesDelLocaleOConPunto_data() {
    QTest::addColumn<bool>("espana");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<double>("valor");  // NaN: not an amount
    const double no = qQNaN();
    for (const auto& [espana, texto, valor] :
         QList<std::tuple<bool, QString, double>>{{true, u" 1234.5 "_s, 1234.5},
                                                  {true, u"-3,25"_s, -3.25},
                                                  {true, u"12,"_s, 12.0},
                                                  {true, QString(), no},
                                                  {true, u"abc"_s, no},
                                                  {true, u"1,2,3"_s, no},
                                                  {true, u"1e5"_s, no},
                                                  {true, u"1 000"_s, no},
                                                  {false, u"1,5"_s, no}})
      QTest::addRow("%s %s", espana ? "es" : "us", qPrintable(texto)) << espana << texto << valor;
  }
  void convierteImportesDelLocaleOConPunto() {
    QFETCH(bool, espana);
    QFETCH(QString, texto);
    QFETCH(double, valor);
    QLocale::setDefault(espana ? kEspana : kEEUU);
    bool ok = false;
    QCOMPARE(ConvertirImporte(texto, &ok), qIsNaN(valor) ? 0.0 : valor);
    QCOMPARE(ok, !qIsNaN(valor));
  }

  void losColoresSeGuardanConElRojoAbajo() {
    QCOMPARE(ColorDesdeValor(255), QColor(255, 0, 0));
    QCOMPARE(ColorDesdeValor(65280), QColor(0, 255, 0));
    QCOMPARE(ColorDesdeValor(16711680), QColor(0, 0, 255));
    QCOMPARE(ValorDeColor(QColor(0x12, 0x34, 0x56)), qint64(0x563412));
    QCOMPARE(ColorDesdeTexto(u" 8421504 "_s), QColor(128, 128, 128));
    QVERIFY(!ColorDesdeTexto(QString()).isValid() && !ColorDesdeTexto(u"rojo"_s).isValid());
    // &H8000000F, the button face, however the 32 bits arrive.
    QCOMPARE(ColorDesdeValor(0x8000000FLL), QApplication::palette().color(QPalette::Button));
    QCOMPARE(ColorDesdeValor(-2147483633LL), ColorDesdeValor(0x8000000FLL));
  }

  void cuentaLasEntradasHastaSeisConLaFechaDeLaPrimera() {
    InstalacionPrueba inst;
    QWidget productos, buscar;
    productos.setObjectName(u"frmProductos1024"_s);
    buscar.setObjectName(u"frmBuscar"_s);
    const QString consulta =
        u"select Formulario, empleado, entradas, ultimafecha from entradas1 order by 1, 2"_s;
    RegistrarEntrada(inst.entorno(), &productos, 12);
    QCOMPARE(inst.filas(consulta),
             (QList<QVariantList>{{u"frmProductos1024"_s, u"12"_s, 1,
                                   QDate::currentDate().toString(u"dd/MM/yyyy"_s)}}));
    inst.ejecutar({u"update entradas1 set ultimafecha = '01/02/2020'"_s});
    for (int i = 0; i < 6; ++i)
      RegistrarEntrada(inst.entorno(), &productos, 12);
    RegistrarEntrada(inst.entorno(), &productos, 3);
    RegistrarEntrada(inst.entorno(), &buscar, 12);
    const QString hoy = QDate::currentDate().toString(u"dd/MM/yyyy"_s);
    QCOMPARE(inst.filas(consulta),
             (QList<QVariantList>{{u"frmBuscar"_s, u"12"_s, 1, hoy},
                                  {u"frmProductos1024"_s, u"12"_s, 6, u"01/02/2020"_s},
                                  {u"frmProductos1024"_s, u"3"_s, 1, hoy}}));
    QVERIFY(inst.log().isEmpty());

    // A failure of the database is logged, and the form goes on.
    inst.entorno().sesion.IdentificadorInstalacion = u"INST"_s;
    inst.ejecutar(
        {u"insert into opciones (identificador, tipo_programa) values ('OTRA', 'COPAS'),"
         " ('INST', 'FASTFOOD')"_s});
    QCOMPARE(LeerTipoPrograma(inst.entorno()), u"FASTFOOD"_s);
    inst.ejecutar({u"drop table entradas1"_s, u"drop table opciones"_s});
    RegistrarEntrada(inst.entorno(), &productos, 12);
    QCOMPARE(LeerTipoPrograma(inst.entorno()), QString());
    const QList<QByteArray> lineas = inst.log().split('\n');
    QVERIFY(lineas.at(0).startsWith("Utilidades  2, Descripcion: ") &&
            lineas.at(0).contains("entradas1"));
    QVERIFY(lineas.at(1).startsWith("Utilidades  3, Descripcion: "));
    QCOMPARE(inst.erroresMostrados().size(), 2);
  }

  void subeYCierraProgramasDeLaCarpeta() {
    InstalacionPrueba inst;
    SubirPrograma(inst.entorno(), u"Tarvelo.exe"_s);
    const auto iniciados = inst.dialogos().llamadasDe(u"iniciarPrograma"_s);
    QCOMPARE(iniciados.size(), 1);
    QCOMPARE(iniciados.at(0).texto, inst.entorno().instalacion.rutaEnCarpeta(u"Tarvelo.exe"_s));
    QCOMPARE(QDir::currentPath(), inst.entorno().instalacion.carpetaPrograma);
    inst.dialogos().programaAbierto(u"Tarvelo"_s, 3);
    CerrarPrograma(inst.entorno(), u"Tarvelo.exe"_s);
    QCOMPARE(inst.dialogos().llamadasDe(u"cerrarPrograma"_s).size(), 3);
    QVERIFY(!inst.dialogos().programaEnEjecucion(u"Tarvelo"_s));
    QVERIFY(inst.log().isEmpty());
  }

  void existeArchivoDaElLargoDelNombre_data() {
    QTest::addColumn<QString>("ruta");  // in a folder holding "defecto.gif", "Caña.jpg", "aaa/"
    QTest::addColumn<int>("largo");
    QTest::newRow("archivo") << u"/fotos/defecto.gif"_s << 11;
    QTest::newRow("con \\") << u"\\fotos\\defecto.gif"_s << 11;
    QTest::newRow("mayusculas") << u"/fotos/DEFECTO.GIF"_s << 11;
    QTest::newRow("no esta") << u"/fotos/nada.gif"_s << 0;
    QTest::newRow("comodin") << u"/fotos/*.jpg"_s << 8;
    QTest::newRow("carpeta") << u"/fotos/aaa"_s << 0;
    // A path ending with the separator gives its first file's name, in name order.
    QTest::newRow("la carpeta") << u"\\fotos\\"_s << 8;
    QTest::newRow("vacia") << u"/fotos/aaa/"_s << 0;
  }
  void existeArchivoDaElLargoDelNombre() {
    QFETCH(QString, ruta);
    QFETCH(int, largo);
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath(u"fotos/aaa"_s));
    for (const QString& nombre : {u"defecto.gif"_s, u"Caña.jpg"_s, u".oculto"_s}) {
      QFile archivo(dir.filePath(u"fotos/"_s + nombre));
      QVERIFY(archivo.open(QIODevice::WriteOnly));
    }
    QCOMPARE(ExisteArchivo(dir.path() + ruta), qint16(largo));
    QCOMPARE(ExisteArchivo(QString()), qint16(0));
  }
};

QTEST_MAIN(TestRegional)
#include "test_regional.moc"
