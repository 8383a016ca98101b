#pragma once

#include <QAbstractButton>
#include <QLineEdit>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QtTest>
#include <memory>

#include "frm_productos.h"
#include "instalacion_prueba.h"
#include "paneles.h"

// The colours of the test scheme: the focus colour (yellow) and the entry colour (white).
inline constexpr qint64 kColorFocoPrueba = 0x00FFFF;
inline constexpr qint64 kColorCampoPrueba = 0xFFFFFF;

// A products form on a throwaway installation: the installation's options (Spanish captions,
// program type "RESTAURANTE", two decimals), a colour scheme, the terminal's row for employee
// 5, its captions gathered already, and the rows that a test adds, all written before the form
// loads.
class FormularioPrueba {
 public:
  explicit FormularioPrueba(const QStringList& filas = {});

  InstalacionPrueba& inst() { return inst_; }
  Entorno& entorno() { return inst_.entorno(); }
  DialogosGuion& dialogos() { return inst_.dialogos(); }
  // Loads the form (once); the rows and the session must be ready by then.
  FrmProductos1024& forma();
  // Shows the form and waits until it is the active window, so that it takes the focus.
  bool mostrar();

  template <typename T>
  T* control(const QString& nombre) {
    return forma().findChild<T*>(nombre);
  }

 private:
  InstalacionPrueba inst_;
  TablasPanel tablas_;
  std::unique_ptr<FrmProductos1024> forma_;
};

// Clicks a button of the form, which must be there, shown and enabled.
inline void Pulsar(FormularioPrueba& f, const QString& nombre) {
  auto* b = f.control<QAbstractButton>(nombre);
  QVERIFY2(b, qPrintable(nombre));
  QVERIFY2(b->isVisible() && b->isEnabled(), qPrintable(nombre));
  QTest::mouseClick(b, Qt::LeftButton);
}

// Whether a control of the form is there and on show.
inline bool Visible(FormularioPrueba& f, const QString& nombre) {
  const QWidget* w = f.control<QWidget>(nombre);
  return w && w->isVisible();
}

// Touches a field near its left edge, as a finger would; returns it (null when there is none).
inline QLineEdit* TocarCampo(FormularioPrueba& f, const QString& nombre) {
  auto* campo = f.control<QLineEdit>(nombre);
  if (campo)
    QTest::mouseClick(campo, Qt::LeftButton, {}, QPoint(4, campo->height() / 2));
  return campo;
}

// The installation's rows that every form test starts with (options, terminal, colours).
QStringList FilasDeLaInstalacion();

// The insert of a live product shown on the till, with the given columns (SQL literals) over
// the defaults: cost 1, price 2, tax 10, no family, sale product prepared at the bar, in units.
QString Producto(const QString& codigo, const QString& nombre,
                 const QList<QPair<QString, QString>>& columnas = {});
// The insert of a product's stock row.
QString Stock(const QString& codigo, const QString& stock, const QString& minimo);
// The insert of a printer.
QString Impresora(int codigo, const QString& nombre);

// Gives the offscreen platform a screen of that size (its own is 800×800).
void UsarPantalla(int ancho, int alto);

// The form's tests run on a 1024×768 screen, the size the form is designed for, so that its
// geometry is the design's; or on the screen given.
#define PRODUCTOS_TEST_MAIN_PANTALLA(Clase, ancho, alto) \
  int main(int argc, char** argv) {                      \
    UsarPantalla(ancho, alto);                           \
    QApplication app(argc, argv);                        \
    Clase prueba;                                        \
    QTEST_SET_MAIN_SOURCE_PATH                           \
    return QTest::qExec(&prueba, argc, argv);            \
  }
#define PRODUCTOS_TEST_MAIN(Clase) PRODUCTOS_TEST_MAIN_PANTALLA(Clase, 1024, 768)
