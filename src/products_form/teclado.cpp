#include "teclado.h"

#include <QLineEdit>
#include <QPushButton>

#include "config_regional.h"
#include "disenio.h"
#include "entorno.h"
#include "estado_formulario.h"
#include "importes.h"
#include "reglas_teclas.h"

using namespace Qt::Literals::StringLiterals;

Teclado::Teclado(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                 Importes& importes, QObject* padre)
    : QObject(padre), entorno_(entorno), estado_(estado), c_(controles), importes_(importes) {}

void Teclado::conectar() {
  for (QPushButton* tecla : std::as_const(c_.teclado.bt_letra)) {
    const int codigo = tecla->property("indice").toInt();
    connect(tecla, &QPushButton::clicked, this, [this, codigo] { pulsar(codigo); });
  }
}

void Teclado::pulsar(int tecla) {
  QLineEdit* campo = importes_.campoActual();
  if (!campo)
    return;
  // The whole selection is cleared first, even in a locked field: the keyboard has always
  // done it in this order.
  BorrarSiTodoSeleccionado(campo);
  // The description is the step before the suppliers: the supplier button is marked next.
  if (campo == c_.gen.txt_descripcion)
    PintarFondo(c_.gen.cmd_Proveedor, estado_.colorFoco);
  if (campo->isReadOnly())
    return;

  const QString texto = campo->text();
  if (tecla == teclas::kRetroceso) {
    if (!texto.isEmpty())
      campo->setText(texto.chopped(1));
  } else if (tecla != teclas::kEnter) {
    campo->setText(texto + CaracterDeTeclaEnPantalla(campo->objectName(), texto, tecla,
                                                     entorno_.sesion.numDecimales,
                                                     SeparadorDecimal()));
  }
  if (campo->objectName() == u"txt_Cantidad"_s && tecla == teclas::kEnter) {
    importes_.EnterCantidad();
  }
}
