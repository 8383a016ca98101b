#include "filtro_teclas.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "reglas_teclas.h"

void FiltroTeclas::poner(QLineEdit* campo, Regla regla) {
  reglas_.insert(campo, std::move(regla));
  campo->installEventFilter(this);
  // Pasting from the context menu would bring in what the keys may not type.
  campo->setContextMenuPolicy(Qt::NoContextMenu);
}

int FiltroTeclas::CodigoDeTecla(const QKeyEvent* evento) {
  switch (evento->key()) {
    case Qt::Key_Backspace:
      return teclas::kRetroceso;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return teclas::kEnter;
    case Qt::Key_Escape:
      return teclas::kEscape;
    default:
      break;
  }
  if ((evento->modifiers() & Qt::ControlModifier) && evento->key() >= Qt::Key_A &&
      evento->key() <= Qt::Key_Z) {
    return evento->key() - Qt::Key_A + 1;
  }
  const QString texto = evento->text();
  if (texto.isEmpty() || texto.at(0).unicode() < 32)
    return -1;
  return texto.at(0).unicode();
}

bool FiltroTeclas::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress)
    return QObject::eventFilter(objeto, evento);
  const auto regla = reglas_.constFind(objeto);
  auto* campo = qobject_cast<QLineEdit*>(objeto);
  if (regla == reglas_.cend() || !campo || campo->isReadOnly())
    return false;
  const int tecla = CodigoDeTecla(static_cast<QKeyEvent*>(evento));
  if (tecla < 0)
    return false;

  const int resultado = (*regla)(campo, tecla);
  if (resultado == 0)
    return true;
  if (resultado == tecla)
    return false;  // the field types the key itself
  if (resultado == teclas::kRetroceso) {
    campo->backspace();
  } else if (resultado >= 32) {
    campo->insert(QString(QChar(resultado)));
  }
  return true;
}
