#include "capturas.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "carga_dialogo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Paso {
  QString boton;  // empty: nothing to press before the picture
  QString archivo;
  QString lista = {};  // a list whose first line is touched before the button is pressed
};

void TocarPrimeraLinea(QWidget* formulario, const QString& nombre) {
  if (auto* l = formulario->findChild<QListView*>(nombre); l && l->model()->rowCount() > 0)
    l->setCurrentIndex(l->model()->index(0, 0));
}

// A button by its name, in the dialog open over the form first; "panel/boton" names a button
// inside a named control.
void Pulsar(QWidget* formulario, const QString& nombre) {
  QWidget* donde =
      QApplication::activeModalWidget() ? QApplication::activeModalWidget() : formulario;
  for (const QString& parte : nombre.split(u'/')) {
    if (donde)
      donde = donde->findChild<QWidget*>(parte);
  }
  if (auto* b = qobject_cast<QAbstractButton*>(donde); b && b->isEnabled())
    b->click();
  QApplication::processEvents();
}

// The form's window with the dialog open over it, where it stands.
QPixmap Captura(QWidget* formulario) {
  QWidget* ventana = formulario->window();
  QPixmap imagen = ventana->grab();
  if (QWidget* dialogo = QApplication::activeModalWidget(); dialogo && dialogo != ventana) {
    QPainter pintor(&imagen);
    const QRect donde(dialogo->pos() - ventana->pos(), dialogo->size());
    pintor.drawPixmap(donde.topLeft(), dialogo->grab());
    // Where the window manager would draw the dialog's title bar and border.
    const QRect titulo(donde.left(), donde.top() - kAltoTituloVentana, donde.width(),
                       kAltoTituloVentana);
    pintor.fillRect(titulo, Qt::darkGray);
    pintor.setPen(Qt::white);
    pintor.drawText(titulo.adjusted(12, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    dialogo->windowTitle());
    pintor.setPen(QPen(Qt::darkGray, 2));
    pintor.drawRect(donde.united(titulo).adjusted(-1, -1, 0, 0));
  }
  return imagen;
}

}  // namespace

int GuardarCapturas(QWidget* formulario, const QString& carpeta) {
  const QList<Paso> pasos = {
      {{}, u"01-inicio.png"_s},
      {u"cmd_ProdGenerico"_s, u"02-productos.png"_s},
      {u"bt_botones_2"_s, u"03-productos-siguiente.png"_s},
      {u"cmd_modificar"_s, u"04-productos-modificar.png"_s},
      {u"cmd_cancelar"_s, {}},
      {u"cmd_nuevo"_s, u"05-productos-nuevo.png"_s},
      {u"cmd_cancelar"_s, {}},
      {u"cmd_salir"_s, {}},
      {u"cmd_ProdElaborado"_s, u"06-elaborados.png"_s},
      {u"cmd_ModificarProdEla"_s, u"07-elaborados-modificar.png"_s},
      {u"bt_flecha"_s, u"08-elaborados-cantidad.png"_s, u"lb_Productos"_s},
      {u"cmd_QuitarComponente"_s, {}},
      {u"cmd_CancelarProdEl"_s, {}},
      {u"cmd_SalirProdEla"_s, {}},
      {u"cmd_ProdGenerico"_s, {}},
      // The search: "ca" typed on its keyboard, searched, then closed with no choice.
      {u"cmd_buscar"_s, {}},
      {u"bt_letra_67"_s, {}},
      {u"bt_letra_65"_s, {}},
      {u"BtnBusClie_0"_s, u"09-buscar.png"_s},
      {u"BtnBusClie_2"_s, {}},
      // The sub-products: a parent touched, then two products of its family added.
      {u"Command1"_s, {}},
      {u"PanelPrimeros/boton_1"_s, {}},
      {u"PanelPrimeros/boton_2"_s, {}},
      {u"PanelPrimeros/boton_3"_s, u"10-subproductos.png"_s},
      {u"cmd_CancelarFin"_s, {}},
  };
  QDir().mkpath(carpeta);
  int escritas = 0;
  for (const Paso& paso : pasos) {
    if (!paso.lista.isEmpty())
      TocarPrimeraLinea(formulario, paso.lista);
    if (!paso.boton.isEmpty())
      Pulsar(formulario, paso.boton);
    if (paso.archivo.isEmpty())
      continue;
    if (Captura(formulario).save(QDir(carpeta).filePath(paso.archivo)))
      ++escritas;
  }
  return escritas;
}
