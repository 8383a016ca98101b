#include "controles.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFont>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTextEdit>
#include <QWidget>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

// Qt names the helper widgets that it creates inside its own composite widgets "qt_...".
bool EsInterno(const QWidget* w) {
  return w->objectName().startsWith(u"qt_"_s);
}

// The widgets whose children are controls of the form, like frames, picture
// panels and tab pages; any other widget is one control as a whole.
bool EsContenedor(const QWidget* w) {
  if (qobject_cast<const QGroupBox*>(w))
    return true;
  if (w->property("contenedor").toBool())
    return true;
  const char* clase = w->metaObject()->className();
  for (const char* c :
       {"QWidget", "QFrame", "QStackedWidget", "QTabWidget", "QScrollArea", "QSplitter"}) {
    if (qstrcmp(clase, c) == 0)
      return true;
  }
  return false;
}

// Helper widgets that only carry a container's controls: a tab widget's page stack and a
// scroll area's viewport. The rest of Qt's helpers (scroll bars, tab bars) are left out.
bool AtraviesaInterno(const QWidget* w) {
  if (qobject_cast<const QStackedWidget*>(w))
    return true;
  const auto* area = qobject_cast<const QAbstractScrollArea*>(w->parentWidget());
  return area && area->viewport() == w;
}

void Recorrer(QWidget* padre, QList<QWidget*>& controles) {
  for (QObject* hijo : padre->children()) {
    auto* w = qobject_cast<QWidget*>(hijo);
    if (!w || w->isWindow())
      continue;
    if (EsInterno(w)) {
      if (AtraviesaInterno(w))
        Recorrer(w, controles);
      continue;
    }
    controles.append(w);
    if (EsContenedor(w))
      Recorrer(w, controles);
  }
}

}  // namespace

TipoControl TipoDe(const QWidget* control) {
  if (qobject_cast<const QPushButton*>(control))
    return TipoControl::Boton;
  if (qobject_cast<const QLabel*>(control))
    return TipoControl::Etiqueta;
  if (qobject_cast<const QGroupBox*>(control))
    return TipoControl::Marco;
  if (qobject_cast<const QTableView*>(control))
    return TipoControl::Rejilla;
  if (qobject_cast<const QLineEdit*>(control) || qobject_cast<const QTextEdit*>(control) ||
      qobject_cast<const QPlainTextEdit*>(control) || qobject_cast<const QComboBox*>(control) ||
      qobject_cast<const QListView*>(control) || qobject_cast<const QAbstractSpinBox*>(control)) {
    return TipoControl::Entrada;
  }
  return TipoControl::Otro;
}

QList<QWidget*> ControlesDe(QWidget* formulario) {
  QList<QWidget*> controles;
  if (formulario)
    Recorrer(formulario, controles);
  return controles;
}

QString CaptionDe(const QWidget* control) {
  if (const auto* b = qobject_cast<const QPushButton*>(control))
    return b->text();
  if (const auto* l = qobject_cast<const QLabel*>(control))
    return l->text();
  if (const auto* g = qobject_cast<const QGroupBox*>(control))
    return g->title();
  return {};
}

void PonerCaption(QWidget* control, const QString& caption) {
  if (auto* b = qobject_cast<QPushButton*>(control)) {
    b->setText(caption);
  } else if (auto* l = qobject_cast<QLabel*>(control)) {
    l->setText(caption);
  } else if (auto* g = qobject_cast<QGroupBox*>(control)) {
    g->setTitle(caption);
  }
}

QWidget* BuscarControl(QWidget* formulario, const QString& nombre) {
  if (!formulario || nombre.isEmpty())
    return nullptr;
  if (auto* exacto = formulario->findChild<QWidget*>(nombre))
    return exacto;
  const QList<QWidget*> todos = formulario->findChildren<QWidget*>();
  for (QWidget* w : todos) {
    if (w->objectName().compare(nombre, Qt::CaseInsensitive) == 0)
      return w;
  }
  return nullptr;
}

QWidget* ContenedorDe(const QWidget* control, const QWidget* formulario) {
  QWidget* p = control ? control->parentWidget() : nullptr;
  while (p && p != formulario && EsInterno(p))
    p = p->parentWidget();
  return p;
}

QFont LetraEscalada(const QFont& letra, double factor, double minimoPuntos) {
  QFont f = letra;
  if (f.pointSizeF() > 0) {
    f.setPointSizeF(std::max(minimoPuntos, f.pointSizeF() * factor));
  } else if (f.pixelSize() > 0) {
    // 96 pixels to the inch, 72 points to the inch.
    const int minimoPixeles = static_cast<int>(std::lround(minimoPuntos * 96.0 / 72.0));
    f.setPixelSize(std::max(minimoPixeles, static_cast<int>(std::lround(f.pixelSize() * factor))));
  }
  return f;
}

void EscalarLetras(QWidget* formulario, double factor, double minimoPuntos) {
  if (!formulario)
    return;
  QList<QWidget*> widgets{formulario};
  widgets.append(ControlesDe(formulario));
  QList<QFont> letras;
  letras.reserve(widgets.size());
  for (const QWidget* w : std::as_const(widgets)) {
    letras.append(LetraEscalada(w->font(), factor, minimoPuntos));
  }
  for (int i = 0; i < widgets.size(); ++i)
    widgets.at(i)->setFont(letras.at(i));
}
