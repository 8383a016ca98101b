#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <QApplication>

#include "dialogos_guion.h"
#include "dialogos_qt.h"

using namespace Qt::Literals::StringLiterals;

class TestDialogos : public QObject {
  Q_OBJECT
 private slots:
  void encuentraProcesosPorNombreSinExeNiMayusculas();
  void elGuionCierraLasInstanciasAbiertasUnaAUna();
  void enterEnUnaPreguntaRespondeNo();
};

namespace {

void Proceso(const QTemporaryDir& proc, const QString& pid, const QByteArray& cmdline) {
  QDir(proc.path()).mkdir(pid);
  QFile f(proc.filePath(pid + u"/cmdline"_s));
  QVERIFY(f.open(QIODevice::WriteOnly));
  f.write(cmdline);
}

}  // namespace

void TestDialogos::encuentraProcesosPorNombreSinExeNiMayusculas() {
  QTemporaryDir proc;
  Proceso(proc, u"101"_s, QByteArray("/opt/tpv/Tarvelo.exe\0--x\0", 25));
  Proceso(proc, u"102"_s, QByteArray("tarvelo\0", 8));
  Proceso(proc, u"103"_s, QByteArray("/usr/bin/TarveloBis\0", 20));
  Proceso(proc, u"self"_s, QByteArray("Tarvelo\0", 8));  // not a process id
  QList<qint64> pids = ProcesosConNombre(u"Tarvelo"_s, proc.path());
  std::sort(pids.begin(), pids.end());
  QCOMPARE(pids, (QList<qint64>{101, 102}));
  QCOMPARE(ProcesosConNombre(u"TARVELO.EXE"_s, proc.path()).size(), 2);
  QVERIFY(ProcesosConNombre(u"Caja"_s, proc.path()).isEmpty());
}

void TestDialogos::elGuionCierraLasInstanciasAbiertasUnaAUna() {
  DialogosGuion d;
  d.programaAbierto(u"Tarvelo"_s, 2);
  int cerrados = 0;
  while (d.programaEnEjecucion(u"Tarvelo.exe"_s))
    cerrados += d.cerrarPrograma(u"Tarvelo"_s);
  QCOMPARE(cerrados, 2);
  QVERIFY(!d.cerrarPrograma(u"Tarvelo"_s));
  QCOMPARE(d.llamadasDe(u"cerrarPrograma"_s).size(), 3);
}

// A question that may destroy something answers "No" to Enter, in the real message box and in
// the scripted one alike.
void TestDialogos::enterEnUnaPreguntaRespondeNo() {
  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  DialogosQt qt;
  DialogosGuion guion;
  for (ServicioDialogos* d : std::initializer_list<ServicioDialogos*>{&qt, &guion}) {
    QCOMPARE(d->mensaje(u"¿Borrar?"_s, {}, ServicioDialogos::Icono::Pregunta,
                        ServicioDialogos::Botones::SiNo),
             ServicioDialogos::Respuesta::No);
  }
}

QTEST_MAIN(TestDialogos)
#include "test_dialogos.moc"
