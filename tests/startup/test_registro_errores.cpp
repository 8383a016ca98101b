#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include "frm_error.h"
#include "registro_errores.h"

using namespace Qt::Literals::StringLiterals;

class TestRegistroErrores : public QObject {
  Q_OBJECT
 private slots:
  void escribeLaLineaExactaEnAnsiYAnade();
  void muestraCadaEntradaDespuesDeEscribirla();
  void elFormularioDeErrorMuestraElMensajeSinBloquear();
};

void TestRegistroErrores::escribeLaLineaExactaEnAnsiYAnade() {
  QTemporaryDir dir;
  RegistroErrores registro(dir.path());
  QVERIFY(!QFile::exists(registro.rutaLog()));
  registro.RegistrarError(u"opciones  1"_s, u"X"_s);
  registro.RegistrarError(u"Base de datos  16"_s, u"Último acceso € — ok ☃"_s);
  QFile f(registro.rutaLog());
  QVERIFY(f.open(QIODevice::ReadOnly));
  const QByteArray esperado =
      "opciones  1, Descripcion: X\r\n"
      "Base de datos  16, Descripcion: \xDAltimo acceso \x80 \x97 ok ?\r\n";
  QCOMPARE(f.readAll(), esperado);
}

void TestRegistroErrores::muestraCadaEntradaDespuesDeEscribirla() {
  QTemporaryDir dir;
  QStringList vistos;
  RegistroErrores registro(dir.path(), [&](const QString& c, const QString& d) {
    // The line is already in the file when the form shows it.
    QFile f(dir.filePath(u"Errores.log"_s));
    QVERIFY(f.open(QIODevice::ReadOnly));
    QVERIFY(f.readAll().endsWith("Descripcion: " + d.toLatin1() + "\r\n"));
    vistos.append(c + u'|' + d);
  });
  registro.RegistrarError(u"Utilidades  2"_s, u"fallo"_s);
  QCOMPARE(vistos, QStringList{u"Utilidades  2|fallo"_s});
}

void TestRegistroErrores::elFormularioDeErrorMuestraElMensajeSinBloquear() {
  FrmError frm;
  frm.mostrarError(u"opciones  1"_s, u"no such table: opciones"_s);
  QVERIFY(frm.isVisible());
  QVERIFY(!frm.isModal());
  auto* lbl = frm.findChild<QLabel*>(u"lblError"_s);
  QVERIFY(lbl);
  QVERIFY(lbl->text().contains(u"opciones  1"_s));
  QVERIFY(lbl->text().contains(u"no such table: opciones"_s));
  QCOMPARE(frm.font().family(), u"Verdana"_s);
  bool hayTitulo = false;
  for (const QLabel* l : frm.findChildren<QLabel*>())
    hayTitulo |= l->text() == u"Error:"_s;
  QVERIFY(hayTitulo);
}

QTEST_MAIN(TestRegistroErrores)
#include "test_registro_errores.moc"
