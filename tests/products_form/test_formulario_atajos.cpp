#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "dialogos_guion.h"
#include "formulario_prueba.h"

using namespace Qt::Literals::StringLiterals;

class TestFormularioAtajos : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void lasTeclasRecorrenLosProductosComoLasFlechas();
  void unaTeclaNoPulsaUnBotonApagadoNiOculto();
};

namespace {

QStringList Filas() {
  return {u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Sur', 0)"_s,
          Producto(u"1"_s, u"Agua"_s),
          Stock(u"1"_s, u"5"_s, u"1"_s),
          Producto(u"2"_s, u"Caña"_s),
          Stock(u"2"_s, u"5"_s, u"1"_s),
          Producto(u"3"_s, u"Tinto"_s),
          Stock(u"3"_s, u"5"_s, u"1"_s)};
}

QString Nombre(FormularioPrueba& f) {
  return f.control<QLineEdit>(u"txt_nombre"_s)->text();
}

void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mod = Qt::NoModifier) {
  QWidget* foco = QApplication::focusWidget();
  QVERIFY(foco);
  QTest::keyClick(foco, tecla, mod);
}

}  // namespace

void TestFormularioAtajos::lasTeclasRecorrenLosProductosComoLasFlechas() {
  FormularioPrueba f(Filas());
  QVERIFY(f.mostrar());
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  QCOMPARE(Nombre(f), u"Agua"_s);
  Tecla(Qt::Key_PageDown);
  QCOMPARE(Nombre(f), u"Caña"_s);
  Tecla(Qt::Key_End, Qt::ControlModifier);
  QCOMPARE(Nombre(f), u"Tinto"_s);
  // Past the end: the same message as the arrow.
  f.dialogos().olvidar();
  Tecla(Qt::Key_PageDown);
  QCOMPARE(f.dialogos().mensajes(), QStringList{u"Último Registro"_s});
  Tecla(Qt::Key_PageUp);
  QCOMPARE(Nombre(f), u"Caña"_s);
  Tecla(Qt::Key_Home, Qt::ControlModifier);
  QCOMPARE(Nombre(f), u"Agua"_s);
  Tecla(Qt::Key_F1);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirDocumento"_s).size(), 1);
  QVERIFY(
      f.dialogos().llamadasDe(u"abrirDocumento"_s).first().texto.endsWith(u"A_Productos.html"_s));
  // F2 changes the product; in change mode the arrows are away and so are their keys.
  Tecla(Qt::Key_F2);
  QVERIFY(f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QVERIFY(!f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
  Tecla(Qt::Key_PageDown);
  QCOMPARE(Nombre(f), u"Agua"_s);
}

void TestFormularioAtajos::unaTeclaNoPulsaUnBotonApagadoNiOculto() {
  FormularioPrueba f(Filas());
  QVERIFY(f.mostrar());
  // On the start screen the product arrows are hidden: nothing moves.
  Tecla(Qt::Key_PageDown);
  QCOMPARE(f.forma().estado().codigoActual, 0);
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  f.control<QPushButton>(u"cmd_nuevo"_s)->setEnabled(false);
  f.control<QPushButton>(u"cmd_modificar"_s)->setFocus();
  Tecla(Qt::Key_Insert);
  QVERIFY(!f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QCOMPARE(Nombre(f), u"Agua"_s);
}

PRODUCTOS_TEST_MAIN(TestFormularioAtajos)
#include "test_formulario_atajos.moc"
