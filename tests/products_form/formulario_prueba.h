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

// A products form on a throwaway installation with the rows a test adds before it loads.
class FormularioPrueba {
 public:
  explicit FormularioPrueba(const QStringList& filas = {});

  InstalacionPrueba& inst() { return inst_; }
  Entorno& entorno() { return inst_.entorno(); }
  DialogosGuion& dialogos() { return inst_.dialogos(); }
  FrmProductos1024& forma();
  // Shows the form and waits until it is active, so that it takes the focus.
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

// Clicks a dialog's button; with a panel, the panel's nth button.
inline void Clic(QWidget* dialogo, const QString& nombre, int boton = 0) {
  if (boton)
    dialogo = dialogo->findChild<QWidget*>(nombre);
  QTest::mouseClick(
      dialogo->findChild<QAbstractButton*>(boton ? QStringLiteral("boton_%1").arg(boton) : nombre),
      Qt::LeftButton);
}

// Clicks a button of the form, which must be shown and enabled.
inline void Pulsar(FormularioPrueba& f, const QString& nombre) {
  auto* b = f.control<QAbstractButton>(nombre);
  QVERIFY2(b, qPrintable(nombre));
  QVERIFY2(b->isVisible() && b->isEnabled(), qPrintable(nombre));
  QTest::mouseClick(b, Qt::LeftButton);
}

inline bool Visible(FormularioPrueba& f, const QString& nombre) {
  const QWidget* w = f.control<QWidget>(nombre);
  return w && w->isVisible();
}

inline bool Activo(FormularioPrueba& f, const QString& nombre) {
  const QWidget* w = f.control<QWidget>(nombre);
  return w && w->isEnabled();
}

// Each control named (separated by blanks) is on show (or enabled) as expected.
void Exigir(FormularioPrueba& f, bool (*estado)(FormularioPrueba&, const QString&),
            const QString& nombres, bool esperado);

QString Texto(FormularioPrueba& f, const QString& nombre);
// The colour in the middle of the picture a box shows; invalid when there is none.
QColor ColorMostrado(FormularioPrueba& f, const QString& caja);
QStringList Lineas(FormularioPrueba& f, const QString& lista);

// Touches a field near its left edge, as a finger would; returns it.
inline QLineEdit* TocarCampo(FormularioPrueba& f, const QString& nombre) {
  auto* campo = f.control<QLineEdit>(nombre);
  if (campo)
    QTest::mouseClick(campo, Qt::LeftButton, {}, QPoint(4, campo->height() / 2));
  return campo;
}

QStringList FilasDeLaInstalacion();

// Rows to insert; a product over defaults: cost 1, price 2, tax 10, no family, bar, units.
QString Producto(const QString& codigo, const QString& nombre,
                 const QList<QPair<QString, QString>>& columnas = {});
QString Stock(const QString& codigo, const QString& stock, const QString& minimo);
QString Impresora(int codigo, const QString& nombre);
QString Proveedor(const QString& codigo, const QString& nombre);
QString Familia(const QString& codigo, const QString& nombre, int orden);

// Touches a field, rubs out what it holds with Backspace and types the text with real keys.
void Escribir(FormularioPrueba& f, const QString& nombre, const QString& texto);
void TocarLinea(FormularioPrueba& f, const QString& lista, const QString& texto);
// Touches a family's button on a families panel, paging forward until it shows.
void TocarFamilia(FormularioPrueba& f, const QString& familia,
                  const QString& panel = QStringLiteral("PanelFamilias"));

// A product row's columns in the table's order; the stock row's; the supplier links.
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

// Checks a row column by column: texts as texts, numbers as numbers, nulls as nulls.
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

// A draught beer as the form hands it to the save: every field filled, two suppliers.
ProductoFormulario Cana();

// A picture of one colour padded to an exact size in bytes, written into a folder; its path.
QString Imagen(const QString& carpeta, const QString& nombre, qint64 bytes, const QColor& color);
QByteArray Contenido(const QString& ruta);

// Gives the offscreen platform a screen of that size (its own is 800×800).
void UsarPantalla(int ancho, int alto);

// The form's tests run on the 1024×768 screen it is designed for, or on the one given.
#define PRODUCTOS_TEST_MAIN_PANTALLA(Clase, ancho, alto) \
  int main(int argc, char** argv) {                      \
    UsarPantalla(ancho, alto);                           \
    QApplication app(argc, argv);                        \
    Clase prueba;                                        \
    QTEST_SET_MAIN_SOURCE_PATH                           \
    return QTest::qExec(&prueba, argc, argv);            \
  }
#define PRODUCTOS_TEST_MAIN(Clase) PRODUCTOS_TEST_MAIN_PANTALLA(Clase, 1024, 768)
