#include <QDate>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "instalacion_prueba.h"
#include "utilidades.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void Archivo(const QString& ruta) {
  QFile f(ruta);
  if (!f.open(QIODevice::WriteOnly))
    qFatal("cannot write %s", qPrintable(ruta));
}

}  // namespace

class TestUtilidades : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<InstalacionPrueba> inst;

  QList<QVariantList> entradas() {
    return inst->filas(
        u"select Formulario, empleado, entradas, ultimafecha from entradas1 order by empleado"_s);
  }

 private slots:
  void init() { inst = std::make_unique<InstalacionPrueba>(); }
  void cleanup() { inst.reset(); }

  void cuentaLasEntradasHastaSeisConLaFechaDeLaPrimera() {
    QWidget formulario;
    formulario.setObjectName(u"frmProductos1024"_s);
    const QString hoy = QDate::currentDate().toString(u"dd/MM/yyyy"_s);
    RegistrarEntrada(inst->entorno(), &formulario, 12);
    QCOMPARE(entradas(), (QList<QVariantList>{{u"frmProductos1024"_s, u"12"_s, 1, hoy}}));
    QCOMPARE(hoy.size(), 10);
    QCOMPARE(hoy.at(2), u'/');

    inst->ejecutar({u"update entradas1 set ultimafecha = '01/02/2020'"_s});
    for (int i = 0; i < 6; ++i)
      RegistrarEntrada(inst->entorno(), &formulario, 12);
    // The seventh opening leaves 6, and the date stays that of the first.
    QCOMPARE(entradas(),
             (QList<QVariantList>{{u"frmProductos1024"_s, u"12"_s, 6, u"01/02/2020"_s}}));

    // Each employee and form counts on its own.
    RegistrarEntrada(inst->entorno(), &formulario, 3);
    QWidget buscar;
    buscar.setObjectName(u"frmBuscar"_s);
    RegistrarEntrada(inst->entorno(), &buscar, 12);
    QCOMPARE(inst->filas(u"select count(*) from entradas1"_s).at(0).at(0).toInt(), 3);
    QCOMPARE(inst->filas(u"select entradas from entradas1 where empleado = '3'"_s),
             (QList<QVariantList>{{1}}));
    QVERIFY(inst->log().isEmpty());
  }

  void unFalloDeLaBaseSeRegistraYSigue() {
    inst->ejecutar({u"drop table entradas1"_s, u"drop table opciones"_s});
    QWidget formulario;
    formulario.setObjectName(u"frmProductos1024"_s);
    RegistrarEntrada(inst->entorno(), &formulario, 12);
    QCOMPARE(LeerTipoPrograma(inst->entorno()), QString());
    const QList<QByteArray> lineas = inst->log().split('\n');
    QVERIFY(lineas.at(0).startsWith("Utilidades  2, Descripcion: "));
    QVERIFY(lineas.at(0).contains("entradas1"));
    QVERIFY(lineas.at(1).startsWith("Utilidades  3, Descripcion: "));
    QCOMPARE(inst->erroresMostrados().size(), 2);
  }

  void leeElTipoDePrograma() {
    inst->entorno().sesion.IdentificadorInstalacion = u"INST"_s;
    QCOMPARE(LeerTipoPrograma(inst->entorno()), QString());
    inst->ejecutar(
        {u"insert into opciones (identificador, tipo_programa) values ('OTRA', "
         "'COPAS')"_s,
         u"insert into opciones (identificador, tipo_programa) values ('INST', "
         "'FASTFOOD')"_s});
    QCOMPARE(LeerTipoPrograma(inst->entorno()), u"FASTFOOD"_s);
  }

  void subeYCierraProgramasDeLaCarpeta() {
    SubirPrograma(inst->entorno(), u"Tarvelo.exe"_s);
    const auto iniciados = inst->dialogos().llamadasDe(u"iniciarPrograma"_s);
    QCOMPARE(iniciados.size(), 1);
    QCOMPARE(iniciados.at(0).texto, inst->entorno().instalacion.rutaEnCarpeta(u"Tarvelo.exe"_s));
    QCOMPARE(iniciados.at(0).titulo, inst->entorno().instalacion.carpetaPrograma);
    QCOMPARE(QDir::currentPath(), inst->entorno().instalacion.carpetaPrograma);

    inst->dialogos().programaAbierto(u"Tarvelo"_s, 3);
    CerrarPrograma(inst->entorno(), u"Tarvelo"_s);
    QCOMPARE(inst->dialogos().llamadasDe(u"cerrarPrograma"_s).size(), 3);
    QVERIFY(!inst->dialogos().programaEnEjecucion(u"Tarvelo"_s));
    QVERIFY(inst->log().isEmpty());
  }

  void existeArchivoDaElLargoDelNombre() {
    QTemporaryDir dir;
    const QString carpeta = dir.path();
    QVERIFY(QDir(carpeta).mkdir(u"fotos"_s));
    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/"_s), qint16(0));  // an empty folder
    Archivo(carpeta + u"/fotos/defecto.gif"_s);
    Archivo(carpeta + u"/fotos/Caña.jpg"_s);
    Archivo(carpeta + u"/fotos/.oculto"_s);
    QVERIFY(QDir(carpeta + u"/fotos"_s).mkdir(u"aaa"_s));

    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/defecto.gif"_s), qint16(11));
    QCOMPARE(ExisteArchivo(carpeta + u"\\fotos\\defecto.gif"_s), qint16(11));
    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/DEFECTO.GIF"_s), qint16(11));
    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/nada.gif"_s), qint16(0));
    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/*.jpg"_s), qint16(8));
    // A folder is not a file; a path ending with the separator lists the folder's files and
    // gives the first name's length ("Caña.jpg" before "defecto.gif").
    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/aaa"_s), qint16(0));
    QCOMPARE(ExisteArchivo(carpeta + u"/fotos/"_s), qint16(8));
    QCOMPARE(ExisteArchivo(carpeta + u"\\fotos\\"_s), qint16(8));
    QCOMPARE(ExisteArchivo(QString()), qint16(0));
  }
};

QTEST_MAIN(TestUtilidades)
#include "test_utilidades.moc"
