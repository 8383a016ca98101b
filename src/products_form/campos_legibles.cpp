#include "campos_legibles.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>

namespace {

// Draws a switched-off picture as it is.
class EstiloImagenLegible : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  QPixmap generatedIconPixmap(QIcon::Mode modo, const QPixmap& imagen,
                              const QStyleOption* opcion) const override {
    if (modo == QIcon::Disabled)
      return imagen;
    return QProxyStyle::generatedIconPixmap(modo, imagen, opcion);
  }
};

// The switched-off text colours become the active ones; true when something changed.
bool TextoActivoAlApagar(QWidget* control) {
  QPalette paleta = control->palette();
  bool cambiada = false;
  for (QPalette::ColorRole rol : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    const QColor activo = paleta.color(QPalette::Active, rol);
    if (paleta.color(QPalette::Disabled, rol) != activo) {
      paleta.setColor(QPalette::Disabled, rol, activo);
      cambiada = true;
    }
  }
  if (cambiada)
    control->setPalette(paleta);
  return cambiada;
}

}  // namespace

CamposLegibles::CamposLegibles(ControlesFormulario& c, QObject* padre) : QObject(padre) {
  QList<QWidget*> campos = {c.gen.cmd_Proveedor};
  for (QWidget* pantalla : {c.gen.fr_ProductoGenerico, c.elab.fr_ProductosElaborados}) {
    for (QCheckBox* casilla : pantalla->findChildren<QCheckBox*>())
      campos.append(casilla);
    for (QRadioButton* opcion : pantalla->findChildren<QRadioButton*>())
      campos.append(opcion);
  }
  auto* estilo = new EstiloImagenLegible(QStyleFactory::create(c.gen.pict_imagen->style()->name()));
  estilo->setParent(this);
  for (QLabel* caja :
       {c.gen.pict_imagen, c.gen.pic_ColorPG, c.elab.pic_ProductoElaborado, c.elab.pic_Color}) {
    caja->setStyle(estilo);
    campos.append(caja);
  }
  // The scheme paints the form after this: each field follows its palette whenever it changes.
  for (QWidget* campo : std::as_const(campos)) {
    TextoActivoAlApagar(campo);
    campo->installEventFilter(this);
  }
}

bool CamposLegibles::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::PaletteChange)
    TextoActivoAlApagar(static_cast<QWidget*>(objeto));
  return QObject::eventFilter(objeto, evento);
}
