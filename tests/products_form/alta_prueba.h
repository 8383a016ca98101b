#pragma once

// What the tests of saving and deleting simple products do with the form, as a manager does it:
// buttons pressed, fields touched and typed into with real keys, lines of lists touched.

#include <QtTest>

#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"
#include "producto_prueba.h"

namespace alta {

using namespace Qt::Literals::StringLiterals;

inline const QString kColumnasStock =
    u"select Producto, Stock, StockMinimo, ConsumicionesDisponibles from stock "_s;
inline const QString kEnlaces =
    u"select producto, proveedor, coste from productoproveedor order by producto, proveedor"_s;

inline QString Proveedor(const QString& codigo, const QString& nombre) {
  return u"insert into proveedores (codigo, nombre, borrar) values ('%1', '%2', 0)"_s.arg(codigo,
                                                                                          nombre);
}

inline QString Familia(const QString& codigo, const QString& nombre, int orden) {
  return u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
         "('%1', '%2', 0, 0, %3, 0)"_s.arg(codigo, nombre)
             .arg(orden);
}

// Touches a field, rubs out what it holds with Backspace and types the text: what a manager does
// whether or not the touch selected the whole text (a field that had the focus already keeps
// its caret, and the margin never lets a key replace its text).
inline void Escribir(FormularioPrueba& f, const QString& nombre, const QString& texto) {
  auto* campo = f.control<QLineEdit>(nombre);
  QVERIFY2(campo, qPrintable(nombre));
  QVERIFY2(campo->isVisible() && campo->isEnabled(), qPrintable(nombre));
  QTest::mouseClick(campo, Qt::LeftButton);
  QTRY_COMPARE(QApplication::focusWidget(), campo);
  if (!campo->hasSelectedText())
    QTest::keyClick(campo, Qt::Key_End);
  for (int i = 0; i < 40 && !campo->text().isEmpty(); ++i)
    QTest::keyClick(campo, Qt::Key_Backspace);
  QCOMPARE(campo->text(), QString());
  QTest::keyClicks(campo, texto);
  QCOMPARE(campo->text(), texto);
}

// Touches the line of a list that starts with the text.
inline void TocarLinea(FormularioPrueba& f, const QString& lista, const QString& texto) {
  auto* l = f.control<QListView>(lista);
  QVERIFY2(l && l->isVisible(), qPrintable(lista));
  for (int i = 0; i < l->model()->rowCount(); ++i) {
    const QModelIndex linea = l->model()->index(i, 0);
    if (linea.data().toString().startsWith(texto)) {
      QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualRect(linea).center());
      return;
    }
  }
  QFAIL(qPrintable(lista + u": "_s + texto));
}

// Touches a family's button on the families panel.
inline void TocarFamilia(FormularioPrueba& f, const QString& familia) {
  auto* panel = f.control<PanelObjNuevo>(u"PanelFamilias"_s);
  QVERIFY(panel && panel->isVisible());
  const QList<QAbstractButton*> botones = panel->findChildren<QAbstractButton*>();
  for (QAbstractButton* b : botones) {
    if (b->objectName().startsWith(u"boton_"_s) && b->isVisible() &&
        b->accessibleName() == familia) {
      QTest::mouseClick(b, Qt::LeftButton);
      return;
    }
  }
  QFAIL(qPrintable(familia));
}

// Set PRODUCTOS_CAPTURAS_PRUEBA to a folder to look at the form at that moment.
inline void Capturar(FormularioPrueba& f, const QString& nombre) {
  const QString carpeta = qEnvironmentVariable("PRODUCTOS_CAPTURAS_PRUEBA");
  if (carpeta.isEmpty())
    return;
  QDir().mkpath(carpeta);
  QVERIFY(f.forma().grab().save(QDir(carpeta).filePath(nombre + u".png"_s)));
}

}  // namespace alta
