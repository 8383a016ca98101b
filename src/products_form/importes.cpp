#include "importes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "config_regional.h"
#include "disenio.h"
#include "entorno.h"
#include "estado_formulario.h"
#include "filtro_decimal.h"
#include "filtro_teclas.h"
#include "reglas_teclas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool EsNumero(const QString& texto) {
  bool ok = false;
  ConvertirImporte(texto, &ok);
  return ok;
}

}  // namespace

void BorrarSiTodoSeleccionado(QLineEdit* campo) {
  if (campo->selectionLength() >= campo->text().size())
    campo->clear();
}

Importes::Importes(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                   QObject* padre)
    : QObject(padre),
      entorno_(entorno),
      estado_(estado),
      gen_(controles.gen),
      elab_(controles.elab),
      marcos_(controles.marcos) {}

QString Importes::separador() const {
  return SeparadorDecimal();
}

int Importes::numDecimales() const {
  return entorno_.sesion.numDecimales;
}

void Importes::conectar(QWidget* formulario, FiltroTeclas& filtro) {
  for (QLineEdit* decimal :
       {gen_.txt_coste, gen_.txt_iva, gen_.txt_precio, elab_.txt_costeElaborado,
        elab_.txt_ImpuestoElaborado, elab_.txt_PrecioElaborado}) {
    filtro.poner(decimal,
                 [this](QLineEdit* campo, int tecla) { return reglaDecimal(campo, tecla); });
  }
  filtro.poner(gen_.txt_margen, [this](QLineEdit*, int tecla) { return reglaMargen(tecla); });
  filtro.poner(marcos_.txt_Cantidad,
               [this](QLineEdit*, int tecla) { return reglaCantidad(tecla); });
  filtro.poner(gen_.txt_stock_minimo,
               [this](QLineEdit* campo, int tecla) { return reglaStockMinimo(campo, tecla); });

  connect(gen_.txt_precio, &QLineEdit::textChanged, this, &Importes::precioCambiado);
  connect(elab_.txt_costeElaborado, &QLineEdit::textChanged, this, &Importes::revelarElaborado);
  connect(elab_.txt_ImpuestoElaborado, &QLineEdit::textChanged, this, &Importes::revelarElaborado);

  const QList<QLineEdit*> campos = formulario->findChildren<QLineEdit*>();
  for (QLineEdit* campo : campos)
    campo->installEventFilter(this);
}

int Importes::reglaDecimal(QLineEdit* campo, int tecla) {
  BorrarSiTodoSeleccionado(campo);
  const int resultado = TeclaDecimal(tecla, campo->text(), numDecimales(), separador());
  // The next field to fill is marked: tax after cost, price after tax.
  if (campo == gen_.txt_coste)
    PintarFondo(gen_.txt_iva, estado_.colorFoco);
  if (campo == gen_.txt_iva)
    PintarFondo(gen_.txt_precio, estado_.colorFoco);
  return resultado;
}

int Importes::reglaMargen(int tecla) {
  if (gen_.txt_coste->text().isEmpty() || gen_.txt_iva->text().isEmpty()) {
    // The message repeats on every key, and the key reaches the margin as it was typed.
    entorno_.dialogos->mensaje(u"Debe Indicar Antes una Cantidad para el coste y para el iva"_s,
                               QString(), ServicioDialogos::Icono::Informacion);
    return tecla;
  }
  if (tecla == teclas::kEnter) {
    bool okCoste = false;
    bool okMargen = false;
    bool okIva = false;
    const double coste = ConvertirImporte(gen_.txt_coste->text(), &okCoste);
    const double margen = ConvertirImporte(gen_.txt_margen->text(), &okMargen);
    const double iva = ConvertirImporte(gen_.txt_iva->text(), &okIva);
    if (!okCoste || !okMargen || !okIva) {
      entorno_.RegistrarError(u"txt_margen  1"_s, u"No coinciden los tipos"_s);
      return tecla;
    }
    gen_.txt_precio->setText(FormatearImporte(PrecioDesdeMargen(coste, margen, iva)));
  }
  // No clearing and no separator mapping of its own: the filter alone decides.
  return FiltrarTeclaDecimal(tecla, gen_.txt_margen->text(), numDecimales(), separador());
}

int Importes::reglaCantidad(int tecla) {
  if (tecla == teclas::kEnter) {
    EnterCantidad();
    return 0;
  }
  if (tecla == teclas::kEscape) {
    if (descartarCantidad)
      descartarCantidad();
    return 0;
  }
  return TeclaDecimal(tecla, marcos_.txt_Cantidad->text(), numDecimales(), separador());
}

int Importes::reglaStockMinimo(QLineEdit* campo, int tecla) {
  BorrarSiTodoSeleccionado(campo);
  return TeclaSoloDigitos(tecla);
}

void Importes::EnterCantidad() {
  bool ok = false;
  const double cantidad = ConvertirImporte(marcos_.txt_Cantidad->text(), &ok);
  if (!ok || cantidad <= 0)
    return;
  if (aceptarCantidad)
    aceptarCantidad(cantidad);
  marcos_.txt_Cantidad->clear();
}

void Importes::precioCambiado() {
  if (EsNumero(gen_.txt_precio->text())) {
    if (!EsNumero(gen_.txt_coste->text())) {
      gen_.txt_coste->setText(u"0"_s);
    } else if (!EsNumero(gen_.txt_iva->text())) {
      gen_.txt_iva->setText(u"0"_s);
    } else {
      const double precio = ConvertirImporte(gen_.txt_precio->text());
      const double coste = ConvertirImporte(gen_.txt_coste->text());
      const double iva = ConvertirImporte(gen_.txt_iva->text());
      gen_.txt_margen->setText(FormatearImporte(MargenDesdePrecio(precio, coste, iva)));
    }
  }
  // With a price, what follows it in a new product is due: show on the till and where it is
  // prepared.
  gen_.ch_Mostrar->show();
  gen_.lblPreparado->show();
  gen_.optCocina->show();
  gen_.optBarra->show();
  gen_.frOcultarGen->hide();
}

void Importes::revelarElaborado() {
  const bool conCoste = !elab_.txt_costeElaborado->text().trimmed().isEmpty();
  elab_.lbl_ImpuestoElaborado->setVisible(conCoste);
  elab_.lbl_percentElab->setVisible(conCoste);
  elab_.txt_ImpuestoElaborado->setVisible(conCoste);
  const bool conIva = !elab_.txt_ImpuestoElaborado->text().trimmed().isEmpty();
  elab_.lbl_PrecioElaborado->setVisible(conIva);
  elab_.txt_PrecioElaborado->setVisible(conIva);
}

void Importes::OcultarImportes() {
  for (QRadioButton* tipo : {gen_.opt_ambos, gen_.opt_cocina, gen_.opt_Venta})
    DesmarcarOpcion(tipo);
  for (QWidget* control : std::initializer_list<QWidget*>{
           gen_.lbl_coste, gen_.txt_coste, gen_.lbl_precio, gen_.txt_precio, gen_.lbl_iva,
           gen_.txt_iva, gen_.lbl_percent, gen_.lbl_stock_minimo, gen_.txt_stock_minimo,
           gen_.Label16, gen_.txt_stock_actual, gen_.cbo_Medida, gen_.lbl_Medida,
           gen_.lbl_MedidaAyuda}) {
    control->hide();
  }
}

bool Importes::eventFilter(QObject* objeto, QEvent* evento) {
  auto* campo = qobject_cast<QLineEdit*>(objeto);
  if (!campo)
    return QObject::eventFilter(objeto, evento);
  switch (evento->type()) {
    case QEvent::FocusIn:
      campoActual_ = campo;
      PintarFondo(campo, estado_.colorFoco);
      campo->selectAll();
      // A touch or a click places the caret after the focus arrives; the whole text is
      // selected again when the finger lifts, so that the next key replaces it.
      if (static_cast<QFocusEvent*>(evento)->reason() == Qt::MouseFocusReason) {
        enfocadoConRaton_ = campo;
      }
      break;
    case QEvent::MouseButtonRelease:
      if (enfocadoConRaton_ == campo) {
        enfocadoConRaton_ = nullptr;
        campo->selectAll();
      }
      break;
    case QEvent::FocusOut:
      PintarFondo(campo, estado_.colorCampo);
      break;
    default:
      break;
  }
  return QObject::eventFilter(objeto, evento);
}
