#include "eventos_campos.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "filtro_teclas.h"
#include "reglas_teclas.h"

EventosCampos::EventosCampos(ControlesFormulario& controles, QObject* padre)
    : QObject(padre), c_(controles) {}

void EventosCampos::conectar(FiltroTeclas& filtro) {
  PantallaGenerico& g = c_.gen;
  // The events follow the value, whether the manager or the record display changes it.
  connect(g.cbo_Medida, &QComboBox::currentIndexChanged, this, &EventosCampos::cbo_MedidaClick);
  connect(g.ch_Mostrar, &QCheckBox::toggled, this, &EventosCampos::ch_MostrarClick);
  connect(g.chkProdEspecial, &QCheckBox::toggled, this, &EventosCampos::chkProdEspecialClick);
  // Whatever reveals the box (a price, a kind of product, the end of a special product), the
  // picture and colour come with it as the box says.
  g.ch_Mostrar->installEventFilter(this);
  connect(g.bt_botonAnt, &QPushButton::clicked, this, [this] { MoverPosicion(-1); });
  connect(g.bt_botonSig, &QPushButton::clicked, this, [this] { MoverPosicion(1); });
  for (QLineEdit* numero : {g.txtDescNumericaPGen, c_.elab.txtDescNumerica}) {
    filtro.poner(numero, [](QLineEdit*, int tecla) { return TeclaSoloDigitos(tecla); });
  }
}

bool EventosCampos::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == c_.gen.ch_Mostrar && evento->type() == QEvent::Show) {
    if (c_.gen.ch_Mostrar->isChecked())
      MostrarImagenColor();
    else
      ocultarImagenColor();
  }
  return QObject::eventFilter(objeto, evento);
}

void EventosCampos::cbo_MedidaClick(int indice) {
  if (indice < 0)
    return;
  PantallaGenerico& g = c_.gen;
  for (QWidget* tipo :
       std::initializer_list<QWidget*>{g.Label6, g.opt_Venta, g.opt_cocina, g.opt_ambos}) {
    tipo->show();
  }
  g.opt_ambos->setChecked(true);
  g.frOcultarGen->hide();
}

void EventosCampos::ch_MostrarClick(bool marcado) {
  if (marcado) {
    // A product shown on the till is not an entry or cloakroom product.
    if (c_.gen.chkProdEspecial->isChecked())
      c_.gen.chkProdEspecial->setChecked(false);
    MostrarImagenColor();
  } else {
    ocultarImagenColor();
  }
}

void EventosCampos::chkProdEspecialClick(bool marcado) {
  if (marcado) {
    ocultarImagenColor();
    c_.gen.frMostrarCaja->hide();
  } else {
    c_.gen.frMostrarCaja->show();
  }
}

void EventosCampos::MoverPosicion(int paso) {
  // The position is a place on the till's screen: it never goes below 0.
  const int posicion = c_.gen.lblPos->text().toInt() + paso;
  c_.gen.lblPos->setText(QString::number(std::max(0, posicion)));
}

namespace {

QList<QWidget*> BotonDeCaja(const PantallaGenerico& g) {
  return {g.lbl_color,           g.pic_ColorPG,  g.pict_imagen, g.lbl_Insertar, g.Label14,
          g.txtDescNumericaPGen, g.Lbl_Posicion, g.bt_botonAnt, g.bt_botonSig,  g.lblPos};
}

}  // namespace

void EventosCampos::MostrarImagenColor() {
  for (QWidget* w : BotonDeCaja(c_.gen))
    w->show();
}

void EventosCampos::ocultarImagenColor() {
  for (QWidget* w : BotonDeCaja(c_.gen))
    w->hide();
}
