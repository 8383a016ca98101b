#pragma once

#include <QObject>

#include "imagen_producto.h"
#include "pantallas.h"

struct Entorno;
struct EstadoFormulario;
class QLabel;

// The picture and the colour of the product's button on the till. Touching a picture box (or
// its caption) opens the open-file dialog: the simple products' screen refuses pictures over
// 75000 bytes, the elaborated products' screen takes any size; the picture is copied into the
// screen's photos folder unless a file of its name is there already. Touching a colour box (or
// its caption) opens the colour dialog over the colour frame. The choices are held for saving
// and shown in their boxes; the boxes answer only while they are on (change mode).
class ImagenColor : public QObject {
 public:
  ImagenColor(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
              QObject* padre = nullptr);

  void conectar();

  // The picture choosers of each screen: with the size limit (simple products) and without it
  // (elaborated products, which then go on to the cost).
  void pict_imagenClick();
  void pic_ProductoElaboradoClick();
  // The colour dialog over fr_colores, for the screen of the kind on show.
  void mostrarColores();

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  bool elegirImagen(PantallaImagen pantalla);
  QLabel* cajaImagen() const;
  // The box that a touched box or caption stands for; null for any other control.
  QLabel* cajaDe(const QObject* control) const;

  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
};
