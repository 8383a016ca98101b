#include "capturas.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QPixmap>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Paso {
  QString boton;  // empty: nothing to press before the picture
  QString archivo;
  QString lista = {};  // a list whose first line is touched before the button is pressed
};

void TocarPrimeraLinea(QWidget* formulario, const QString& nombre) {
  if (auto* l = formulario->findChild<QListWidget*>(nombre); l && l->count() > 0)
    l->setCurrentRow(0);
}

void Pulsar(QWidget* formulario, const QString& nombre) {
  if (auto* b = formulario->findChild<QAbstractButton*>(nombre); b && b->isEnabled())
    b->click();
  QApplication::processEvents();
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
    QWidget* ventana = QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                         : formulario->window();
    if (ventana->grab().save(QDir(carpeta).filePath(paso.archivo)))
      ++escritas;
  }
  return escritas;
}
