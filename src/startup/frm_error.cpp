#include "frm_error.h"

#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FrmError::FrmError(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName(u"frmError"_s);
  setWindowTitle(u"Error"_s);
  setFont(QFont(u"Verdana"_s, 11));
  auto* capa = new QVBoxLayout(this);
  auto* titulo = new QLabel(u"Error:"_s, this);
  titulo->setObjectName(u"Label1"_s);
  QFont negrita = font();
  negrita.setBold(true);
  titulo->setFont(negrita);
  lblError_ = new QLabel(this);
  lblError_->setObjectName(u"lblError"_s);
  lblError_->setWordWrap(true);
  lblError_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* cerrar = new QPushButton(u"Cerrar"_s, this);
  cerrar->setObjectName(u"cmdCerrar"_s);
  cerrar->setMinimumSize(140, 48);
  connect(cerrar, &QPushButton::clicked, this, &QWidget::close);
  capa->addWidget(titulo);
  capa->addWidget(lblError_, 1);
  capa->addWidget(cerrar, 0, Qt::AlignRight);
  resize(520, 220);
}

void FrmError::mostrarError(const QString& contexto, const QString& descripcion) {
  lblError_->setText(contexto + u"\n"_s + descripcion);
  show();
  raise();
}
