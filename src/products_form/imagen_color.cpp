#include "imagen_color.h"

#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>

#include "entorno.h"
#include "estado_formulario.h"
#include "imagen_producto.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A touch ends when the left button is released over the control.
bool EsToque(const QEvent* evento) {
  if (evento->type() != QEvent::MouseButtonRelease)
    return false;
  const auto* raton = static_cast<const QMouseEvent*>(evento);
  return raton->button() == Qt::LeftButton;
}

}  // namespace

ImagenColor::ImagenColor(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                         QObject* padre)
    : QObject(padre), entorno_(entorno), estado_(estado), c_(controles) {}

void ImagenColor::conectar() {
  // The captions under the boxes invite a touch ("Insertar imagen", "Toque para elegir el
  // color"): they answer as their boxes do.
  for (QLabel* control : {c_.gen.pict_imagen, c_.gen.lbl_Insertar, c_.elab.pic_ProductoElaborado,
                          c_.elab.lbl_InsertarElab, c_.gen.pic_ColorPG, c_.gen.lbl_color,
                          c_.elab.pic_Color, c_.elab.lbl_colorElab}) {
    control->installEventFilter(this);
  }
}

QLabel* ImagenColor::cajaDe(const QObject* control) const {
  const PantallaGenerico& g = c_.gen;
  const PantallaElaborados& e = c_.elab;
  if (control == g.pict_imagen || control == g.lbl_Insertar)
    return g.pict_imagen;
  if (control == e.pic_ProductoElaborado || control == e.lbl_InsertarElab)
    return e.pic_ProductoElaborado;
  if (control == g.pic_ColorPG || control == g.lbl_color)
    return g.pic_ColorPG;
  if (control == e.pic_Color || control == e.lbl_colorElab)
    return e.pic_Color;
  return nullptr;
}

bool ImagenColor::eventFilter(QObject* objeto, QEvent* evento) {
  auto* control = qobject_cast<QWidget*>(objeto);
  QLabel* caja = cajaDe(objeto);
  if (!control || !caja || !EsToque(evento))
    return QObject::eventFilter(objeto, evento);
  const auto* raton = static_cast<const QMouseEvent*>(evento);
  // A caption answers only while its box does: the modes switch the boxes on and off.
  if (!caja->isEnabled() || !control->rect().contains(raton->position().toPoint()))
    return QObject::eventFilter(objeto, evento);
  if (caja == c_.gen.pict_imagen) {
    pict_imagenClick();
  } else if (caja == c_.elab.pic_ProductoElaborado) {
    pic_ProductoElaboradoClick();
  } else {
    mostrarColores();
  }
  return true;
}

QLabel* ImagenColor::cajaImagen() const {
  // The picture goes to the box of the kind on show, whichever box was touched.
  return estado_.tipo == 2 ? c_.elab.pic_ProductoElaborado : c_.gen.pict_imagen;
}

bool ImagenColor::elegirImagen(PantallaImagen pantalla) {
  const std::optional<ImagenElegida> elegida = ElegirImagen(entorno_, pantalla);
  if (!elegida)
    return false;
  QLabel* caja = cajaImagen();
  caja->setPixmap(
      QPixmap::fromImage(elegida->imagen)
          .scaled(caja->contentsRect().size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
  // The product points at the file of that name in the photos folder.
  caja->setProperty("archivo",
                    QDir(CarpetaImagenes(entorno_, pantalla)).filePath(elegida->archivo));
  estado_.fotoElegida = elegida->archivo;
  return true;
}

void ImagenColor::pict_imagenClick() {
  elegirImagen(PantallaImagen::General);
}

void ImagenColor::pic_ProductoElaboradoClick() {
  // The cost follows the picture on the elaborated screen.
  if (elegirImagen(PantallaImagen::Elaborados))
    c_.elab.txt_costeElaborado->setFocus();
}

void ImagenColor::mostrarColores() {
  MarcosAuxiliares& m = c_.marcos;
  MostrarMarco(m.fr_colores);
  const std::optional<QString> color = ElegirColor(*entorno_.dialogos, estado_.colorElegido);
  if (color) {
    estado_.colorElegido = *color;
    if (estado_.tipo == 2) {
      MostrarColor(c_.elab.pic_Color, *color);
      c_.elab.lbl_colorElab->show();
    } else {
      MostrarColor(c_.gen.pic_ColorPG, *color);
    }
  }
  m.fr_colores->hide();
}
