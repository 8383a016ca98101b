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
#include <QWidget>
#include <memory>

namespace prueba {

using namespace Qt::Literals::StringLiterals;

template <typename T>
T* Crear(QWidget* padre, const QString& nombre, QRect geometria) {
  auto* w = new T(padre);
  w->setObjectName(nombre);
  w->setGeometry(geometria);
  return w;
}

inline QGroupBox* Marco(QWidget* padre, const QString& nombre, const QString& titulo,
                        QRect geometria) {
  auto* g = Crear<QGroupBox>(padre, nombre, geometria);
  g->setTitle(titulo);
  return g;
}

inline QPushButton* Boton(QWidget* padre, const QString& nombre, const QString& caption,
                          QRect geometria) {
  auto* b = Crear<QPushButton>(padre, nombre, geometria);
  b->setText(caption);
  return b;
}

inline QLabel* Etiqueta(QWidget* padre, const QString& nombre, const QString& caption,
                        QRect geometria) {
  auto* l = Crear<QLabel>(padre, nombre, geometria);
  l->setText(caption);
  return l;
}

inline std::unique_ptr<QWidget> FormularioPrueba() {
  auto f = std::make_unique<QWidget>();
  f->setObjectName(u"frmPrueba"_s);
  f->setWindowTitle(u"Mantenimiento de productos"_s);
  f->resize(1024, 768);
  QFont letra = f->font();
  letra.setPointSize(12);
  f->setFont(letra);

  auto* general = Marco(f.get(), u"fr_ProductoGenerico"_s, u"Producto"_s, {10, 10, 600, 500});
  Etiqueta(general, u"lbl_nombre"_s, u"Nombre"_s, {20, 40, 120, 30});
  Crear<QLineEdit>(general, u"txt_nombre"_s, {150, 40, 300, 30})->setText(u"Caña de cerveza"_s);
  Etiqueta(general, u"lbl_coste"_s, u"Coste"_s, {20, 80, 120, 30});
  Crear<QLineEdit>(general, u"txt_coste"_s, {150, 80, 120, 30})->setText(u"1,25"_s);
  auto* medida = Crear<QComboBox>(general, u"cbo_Medida"_s, {300, 80, 150, 30});
  medida->addItems({u"Unidades"_s, u"Kilogramos"_s, u"Litros"_s});
  Crear<QCheckBox>(general, u"ch_Mostrar"_s, {20, 120, 250, 30})->setText(u"Mostrar en caja"_s);

  auto* importes = Marco(general, u"fr_Importes"_s, u"Importes"_s, {20, 160, 560, 320});
  Etiqueta(importes, u"lbl_precio"_s, u"Precio de venta"_s, {20, 40, 200, 30});
  auto* detalle = Marco(importes, u"fr_Detalle"_s, u"Detalle"_s, {20, 80, 520, 220});
  Etiqueta(detalle, u"lbl_iva"_s, u"Impuesto"_s, {20, 40, 150, 30});
  auto* hondo = Marco(detalle, u"fr_Hondo"_s, u"Margen"_s, {20, 80, 230, 120});
  Etiqueta(hondo, u"lbl_margen"_s, u"Margen comercial"_s, {10, 40, 210, 30});
  auto* zoom = Marco(detalle, u"fr_Zoom2"_s, QString(), {270, 80, 230, 120});
  Etiqueta(zoom, u"lbl_zoom"_s, u"Ampliado"_s, {10, 40, 200, 30});

  auto* lista = Crear<QListWidget>(f.get(), u"lstProductos"_s, {620, 10, 390, 200});
  lista->addItems({u"Agua mineral"_s, u"Bocadillo de jamón"_s, u"Café con leche"_s});
  auto* rejilla = Crear<QTableWidget>(f.get(), u"grdIngredientes"_s, {620, 220, 390, 290});
  rejilla->setColumnCount(2);
  rejilla->setRowCount(3);
  rejilla->setHorizontalHeaderLabels({u"Producto"_s, u"Cantidad"_s});
  rejilla->setColumnWidth(0, 200);
  rejilla->setColumnWidth(1, 120);
  for (int r = 0; r < 3; ++r)
    rejilla->setRowHeight(r, 40);
  rejilla->setItem(0, 0, new QTableWidgetItem(u"Harina"_s));
  rejilla->setItem(0, 1, new QTableWidgetItem(u"0,25"_s));

  Crear<QGroupBox>(f.get(), u"fr_SeparacionH1"_s, {10, 520, 1000, 8});
  auto* botones = Marco(f.get(), u"frBotones"_s, QString(), {10, 540, 1000, 210});
  Boton(botones, u"cmd_nuevo"_s, u"Nuevo"_s, {20, 30, 180, 70});
  Boton(botones, u"cmd_modificar"_s, u"Modificar"_s, {210, 30, 180, 70});
  Boton(botones, u"cmd_eliminar"_s, u"Eliminar"_s, {400, 30, 180, 70});
  Boton(botones, u"cmd_salir"_s, u"Salir"_s, {590, 30, 180, 70});
  Etiqueta(botones, u"lbl_eliminar"_s, u"Borra el producto"_s, {400, 110, 300, 30});
  return f;
}

// Where the tests leave their pictures of the forms, to be looked at.
inline QString CarpetaCapturas() {
  const QString carpeta = QDir::temp().filePath(u"productos-capturas-presentacion"_s);
  QDir().mkpath(carpeta);
  return carpeta;
}

}  // namespace prueba
