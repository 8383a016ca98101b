#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QColor>
#include <QDate>
#include <QLineEdit>
#include <QList>
#include <QListWidget>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QtTest>
#include <memory>

#include "frm_productos.h"
#include "grabacion_producto.h"
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

// Whether a control of the form is there and enabled.
inline bool Activo(FormularioPrueba& f, const QString& nombre) {
  const QWidget* w = f.control<QWidget>(nombre);
  return w && w->isEnabled();
}

// Each control of the names separated by blanks is on show (or enabled) as expected.
void Exigir(FormularioPrueba& f, bool (*estado)(FormularioPrueba&, const QString&),
            const QString& nombres, bool esperado);

// The text of a field or a label of the form.
QString Texto(FormularioPrueba& f, const QString& nombre);
// The colour in the middle of the picture a box of the form shows; invalid when there is none.
QColor ColorMostrado(FormularioPrueba& f, const QString& caja);
// The lines of a list of the form, in order.
QStringList Lineas(FormularioPrueba& f, const QString& lista);

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
// The insert of a live supplier.
QString Proveedor(const QString& codigo, const QString& nombre);
// The insert of a live family, not shown on the till.
QString Familia(const QString& codigo, const QString& nombre, int orden);

// Touches a field, rubs out what it holds with Backspace and types the text with real keys:
// what a manager does whether or not the touch selected the whole text.
void Escribir(FormularioPrueba& f, const QString& nombre, const QString& texto);
// Touches the line of a list that starts with the text.
void TocarLinea(FormularioPrueba& f, const QString& lista, const QString& texto);
// Touches a family's button on a families panel, paging forward until it shows.
void TocarFamilia(FormularioPrueba& f, const QString& familia,
                  const QString& panel = QStringLiteral("PanelFamilias"));

// Every column of a product row, in the order of the table; the insert of products with all of
// them; the stock row's columns; the supplier links.
inline const QString kCamposProducto = QStringLiteral(
    "codigo, nombre, descripcion, codigobarras, seccion, coste, MargenComercial, Precio, IVA, "
    "FechaAlta, Foto, color, proveedor, unidadMedida, StockMinimo, MostrarEnCaja, hechoen, "
    "tipoprod, DescNumerica, Orden, impresora, productoespecial, Borrar");
inline const QString kColumnasProducto =
    QStringLiteral("select ") + kCamposProducto + QStringLiteral(" from productos ");
inline const QString kInsertarProductos =
    QStringLiteral("insert into productos (") + kCamposProducto + QStringLiteral(") values ");
inline const QString kColumnasStock =
    QStringLiteral("select Producto, Stock, StockMinimo, ConsumicionesDisponibles from stock ");
inline const QString kEnlaces = QStringLiteral(
    "select producto, proveedor, coste from productoproveedor order by producto, proveedor");

inline QString Hoy() {
  return QDate::currentDate().toString(Qt::ISODate);
}

// Checks a row written against the values expected, column by column: a text must be a text, a
// real and an integer are compared as numbers (each engine hands numbers back in types of its
// own), a null must be null, anything else as it is.
template <typename... Valores>
void CompararFila(const QVariantList& fila, const Valores&... valores) {
  const QVariantList esperado{QVariant(valores)...};
  QCOMPARE(fila.size(), esperado.size());
  for (qsizetype i = 0; i < fila.size(); ++i) {
    const QVariant &v = fila.at(i), &e = esperado.at(i);
    bool igual = v == e;
    if (!e.isValid())
      igual = v.isNull();
    else if (e.typeId() == QMetaType::Int || e.typeId() == QMetaType::LongLong)
      igual = !v.isNull() && v.toLongLong() == e.toLongLong();
    else if (e.typeId() == QMetaType::QString)
      igual = v.typeId() == QMetaType::QString && v.toString() == e.toString();
    else if (e.typeId() == QMetaType::Double)
      igual = !v.isNull() &&
              (v.toDouble() == e.toDouble() || qFuzzyCompare(v.toDouble(), e.toDouble()));
    QVERIFY2(
        igual,
        qPrintable(
            QStringLiteral("column %1: %2, expected %3").arg(i).arg(v.toString(), e.toString())));
  }
}

// A draught beer as the form hands it to the save: every field filled, amounts typed with the
// Spanish separator, two suppliers, the main one first.
ProductoFormulario Cana();

// A real picture of one colour padded to an exact size in bytes (readers ignore what follows
// the picture's end), written into a folder; returns its path.
QString Imagen(const QString& carpeta, const QString& nombre, qint64 bytes, const QColor& color);
// A file's bytes; empty when it cannot be read.
QByteArray Contenido(const QString& ruta);

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
