#pragma once

// A form laid out as the suite's forms are, at 1024×768 with absolute positions: frames nested
// three deep, the zoom and separator frames, buttons, labels, entries, a check box and a grid.

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>
#include <memory>

namespace prueba {

using namespace Qt::Literals::StringLiterals;

template <typename T>
T* Crear(QWidget* padre, const QString& nombre, QRect geometria, const QString& texto = {}) {
  auto* w = new T(padre);
  w->setObjectName(nombre);
  w->setGeometry(geometria);
  if constexpr (std::is_base_of_v<QGroupBox, T>)
    w->setTitle(texto);
  else if constexpr (requires { w->setText(texto); })
    w->setText(texto);
  return w;
}

inline std::unique_ptr<QWidget> FormularioPrueba() {
  auto f = std::make_unique<QWidget>();
  f->setObjectName(u"frmPrueba"_s);
  f->setWindowTitle(u"Mantenimiento de productos"_s);
  f->resize(1024, 768);
  QFont letra = f->font();
  letra.setPointSize(12);
  f->setFont(letra);

  auto* general =
      Crear<QGroupBox>(f.get(), u"fr_ProductoGenerico"_s, {10, 10, 600, 500}, u"Producto"_s);
  Crear<QLabel>(general, u"lbl_nombre"_s, {20, 40, 120, 30}, u"Nombre"_s);
  Crear<QLineEdit>(general, u"txt_nombre"_s, {150, 40, 300, 30}, u"Caña de cerveza"_s);
  Crear<QLabel>(general, u"lbl_coste"_s, {20, 80, 120, 30}, u"Coste"_s);
  Crear<QLineEdit>(general, u"txt_coste"_s, {150, 80, 120, 30}, u"1,25"_s);
  Crear<QComboBox>(general, u"cbo_Medida"_s, {300, 80, 150, 30})->addItems({u"Unidades"_s});
  Crear<QCheckBox>(general, u"ch_Mostrar"_s, {20, 120, 250, 30}, u"Mostrar en caja"_s);
  auto* importes = Crear<QGroupBox>(general, u"fr_Importes"_s, {20, 160, 560, 320}, u"Importes"_s);
  Crear<QLabel>(importes, u"lbl_precio"_s, {20, 40, 200, 30}, u"Precio de venta"_s);
  auto* detalle = Crear<QGroupBox>(importes, u"fr_Detalle"_s, {20, 80, 520, 220}, u"Detalle"_s);
  Crear<QLabel>(detalle, u"lbl_iva"_s, {20, 40, 150, 30}, u"Impuesto"_s);
  auto* hondo = Crear<QGroupBox>(detalle, u"fr_Hondo"_s, {20, 80, 230, 120}, u"Margen"_s);
  Crear<QLabel>(hondo, u"lbl_margen"_s, {10, 40, 210, 30}, u"Margen comercial"_s);
  auto* zoom = Crear<QGroupBox>(detalle, u"fr_Zoom2"_s, {270, 80, 230, 120});
  Crear<QLabel>(zoom, u"lbl_zoom"_s, {10, 40, 200, 30}, u"Ampliado"_s);

  Crear<QListWidget>(f.get(), u"lstProductos"_s, {620, 10, 390, 200})->addItem(u"Agua"_s);
  auto* rejilla = Crear<QTableWidget>(f.get(), u"grdIngredientes"_s, {620, 220, 390, 290});
  rejilla->setColumnCount(2);
  rejilla->setRowCount(3);
  rejilla->setHorizontalHeaderLabels({u"Producto"_s, u"Cantidad"_s});
  rejilla->setColumnWidth(0, 200);
  rejilla->setColumnWidth(1, 120);
  for (int r = 0; r < 3; ++r)
    rejilla->setRowHeight(r, 40);

  Crear<QGroupBox>(f.get(), u"fr_SeparacionH1"_s, {10, 520, 1000, 8});
  auto* botones = Crear<QGroupBox>(f.get(), u"frBotones"_s, {10, 540, 1000, 210});
  Crear<QPushButton>(botones, u"cmd_nuevo"_s, {20, 30, 180, 70}, u"Nuevo"_s);
  Crear<QPushButton>(botones, u"cmd_modificar"_s, {210, 30, 180, 70}, u"Modificar"_s);
  Crear<QPushButton>(botones, u"cmd_eliminar"_s, {400, 30, 180, 70}, u"Eliminar"_s);
  Crear<QPushButton>(botones, u"cmd_salir"_s, {590, 30, 180, 70}, u"Salir"_s);
  Crear<QLabel>(botones, u"lbl_eliminar"_s, {400, 110, 300, 30}, u"Borra el producto"_s);
  return f;
}

// Shows the form and leaves its picture in the temporary folder, to be looked at.
inline void Capturar(QWidget* f, const QString& archivo) {
  f->show();
  QVERIFY(QTest::qWaitForWindowExposed(f));
  const QString carpeta = QDir::temp().filePath(u"productos-capturas-presentacion"_s);
  QVERIFY(QDir().mkpath(carpeta) && f->grab().save(QDir(carpeta).filePath(archivo)));
}

}  // namespace prueba
