#include "buscar.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "carga_dialogo.h"
#include "config_regional.h"
#include "disenio.h"
#include "entorno.h"
#include "idiomas.h"
#include "listas_productos.h"
#include "pantalla_teclado.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The dialog is drawn to fit an 800×600 screen whole, title bar included, with every target a
// fingertip's size; on the design screen it stands over the upper part of the products form.
constexpr int kAncho = 784;
constexpr int kMargen = 8;
constexpr int kToque = disenio::kAltoToque;
constexpr int kAltoMarco = 150;
constexpr int kAltoLista = 4 * kToque + 3 * kMargen;
constexpr int kAnchoBotones = 184;
constexpr int kYLista = kMargen + kAltoMarco + kMargen;
constexpr int kYTeclado = kYLista + kAltoLista + kMargen;

}  // namespace

Buscar::Buscar(Entorno& entorno, const QString& modo, Devolver devolver, QWidget* llamador)
    : QDialog(llamador), entorno_(entorno), modo_(modo), devolver_(std::move(devolver)) {
  setObjectName(u"Buscar"_s);
  setWindowTitle(u"Buscar"_s);
  construir();
  CargarDialogo(entorno_, this, llamador);
}

void Buscar::construir() {
  PonerLetra(this, disenio::kLetra);
  FrProd_ = CrearMarco(this, u"FrProd"_s, u"Buscar productos"_s,
                       QRect(kMargen, kMargen, kAncho - 2 * kMargen, kAltoMarco));
  const QStringList captions = {u"Proveedor"_s, u"Familia"_s, u"Nombre"_s};
  const int anchoCaja = (FrProd_->width() - 4 * kMargen) / 3;
  for (int i = 0; i < captions.size(); ++i) {
    const int x = kMargen + i * (anchoCaja + kMargen);
    CrearEtiqueta(FrProd_, u"lblBusProd_%1"_s.arg(i), captions.at(i), QRect(x, 24, anchoCaja, 28));
    QLineEdit* caja =
        CrearCampo(FrProd_, u"TxtBusProd_%1"_s.arg(i), QRect(x, 52, anchoCaja, kToque));
    caja->installEventFilter(this);
    TxtBusProd_.append(caja);
  }
  chSinAsignar_ = CrearCasilla(FrProd_, u"chSinAsignar"_s, u"Solo productos sin familia"_s,
                               QRect(kMargen, 52 + kToque + 4, 2 * anchoCaja, kToque));

  const int anchoLista = kAncho - 3 * kMargen - kAnchoBotones;
  lst_resultado_ =
      CrearLista(this, u"lst_resultado"_s, QRect(kMargen, kYLista, anchoLista, kAltoLista));
  HacerListaTactil(lst_resultado_);
  connect(lst_resultado_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* linea) { elegir(CodigoDeLineaLista(linea->text())); });

  const QStringList botones = {u"Buscar"_s, u"Limpiar"_s, u"Cerrar"_s};
  const int xBotones = kMargen + anchoLista + kMargen;
  for (int i = 0; i < botones.size(); ++i) {
    BtnBusClie_.append(
        CrearBoton(this, u"BtnBusClie_%1"_s.arg(i), botones.at(i),
                   QRect(xBotones, kYLista + i * (kToque + kMargen), kAnchoBotones, kToque)));
  }
  QPushButton* ayuda =
      CrearBoton(this, u"cmdAyudaBuscar"_s, u"Ayuda"_s,
                 QRect(xBotones, kYLista + 3 * (kToque + kMargen), kAnchoBotones, kToque));
  connect(BtnBusClie_.at(0), &QPushButton::clicked, this, &Buscar::buscar);
  connect(BtnBusClie_.at(1), &QPushButton::clicked, this, &Buscar::limpiarcajas);
  connect(BtnBusClie_.at(2), &QPushButton::clicked, this, [this] { terminar(u"-1"_s); });
  connect(ayuda, &QPushButton::clicked, this, [this] { AbrirAyuda(entorno_, u"A_Buscar.html"_s); });

  // The form's keyboard, narrowed to the dialog's width; its keys keep a fingertip's height.
  const TecladoPantalla teclado = CrearTeclado(this, SeparadorDecimal());
  teclado.fr_teclado->move(0, kYTeclado);
  const QSize diseno = teclado.fr_teclado->size();
  ModificarTamano(teclado.fr_teclado, diseno, QSize(kAncho, diseno.height()));
  for (QPushButton* tecla : teclado.bt_letra) {
    const int codigo = tecla->property("indice").toInt();
    connect(tecla, &QPushButton::clicked, this, [this, codigo] { pulsar(codigo); });
  }
  setFixedSize(kAncho, kYTeclado + teclado.fr_teclado->height());
  AgrandarMarcas(this);

  // Enter on a real keyboard searches; no other button answers it.
  for (QPushButton* b : findChildren<QPushButton*>())
    b->setAutoDefault(false);
  BtnBusClie_.at(0)->setDefault(true);
  cajaActual_ = TxtBusProd_.at(2);
  cajaActual_->setFocus();
}

void Buscar::showEvent(QShowEvent* evento) {
  QDialog::showEvent(evento);
  Mostrar();
}

void Buscar::Mostrar() {
  FrProd_->setVisible(EsModoProductos(modo_));
}

bool Buscar::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn) {
    if (auto* caja = qobject_cast<QLineEdit*>(objeto); TxtBusProd_.contains(caja))
      cajaActual_ = caja;
  }
  return QDialog::eventFilter(objeto, evento);
}

void Buscar::buscar() {
  lst_resultado_->clear();
  if (!EsModoProductos(modo_))
    return;
  const CriteriosBusqueda criterios{TxtBusProd_.at(0)->text(), TxtBusProd_.at(1)->text(),
                                    TxtBusProd_.at(2)->text(), chSinAsignar_->isChecked()};
  lst_resultado_->addItems(BuscarProducto(entorno_, modo_, criterios));
}

void Buscar::limpiarcajas() {
  for (QLineEdit* caja : std::as_const(TxtBusProd_))
    caja->clear();
}

void Buscar::pulsar(int tecla) {
  if (cajaActual_)
    cajaActual_->setText(TextoTrasTecla(cajaActual_->objectName(), cajaActual_->text(), tecla));
}

void Buscar::elegir(const QString& codigo) {
  terminar(EsModoProductos(modo_) ? codigo : u"-1"_s);
}

void Buscar::reject() {
  terminar(u"-1"_s);
}

void Buscar::terminar(const QString& codigo) {
  if (!devuelto_) {
    devuelto_ = true;
    if (devolver_)
      devolver_(codigo);
  }
  done(codigo == u"-1"_s ? Rejected : Accepted);
}

Buscar* AbrirBuscar(Entorno& entorno, const QString& modo, Buscar::Devolver devolver,
                    QWidget* llamador) {
  auto* dialogo = new Buscar(entorno, modo, std::move(devolver), llamador);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  dialogo->open();
  return dialogo;
}
