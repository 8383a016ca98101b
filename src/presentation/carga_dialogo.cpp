#include "carga_dialogo.h"

#include <QScreen>
#include <QWidget>
#include <exception>
#include <functional>

#include "color_vb.h"
#include "colorear.h"
#include "entorno.h"
#include "error_bd.h"
#include "idiomas.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

QPoint posicionar(const QRect& llamador, QSize dialogo, const QRect& pantalla) {
  int x = llamador.x() + (llamador.width() - dialogo.width()) / 2;
  int y = llamador.y() + llamador.height() - dialogo.height() - kAltoTituloVentana;
  x = qMax(pantalla.left(), qMin(x, pantalla.x() + pantalla.width() - dialogo.width()));
  y = qMax(pantalla.top(),
           qMin(y, pantalla.y() + pantalla.height() - dialogo.height() - kAltoTituloVentana));
  return {x, y};
}

void CargarDialogo(Entorno& entorno, QWidget* dialogo, const QWidget* llamador,
                   const QList<PanelObjNuevo*>& paneles) {
  const QString contexto = dialogo->objectName() + u"_Load"_s;
  const auto paso = [&](const std::function<void()>& accion) {
    try {
      accion();
    } catch (const ErrorBD& e) {
      entorno.RegistrarError(contexto, e.descripcion());
    } catch (const std::exception& e) {
      entorno.RegistrarError(contexto, QString::fromLocal8Bit(e.what()));
    }
  };
  paso([&] {
    Colorear colorear(entorno);
    colorear.colorear(dialogo);
    ColorearPaneles(colorear, paneles);
  });
  if (entorno.sesion.idioma != u"CASTELLANO"_s)
    paso([&] { TraducirFormulario(entorno, dialogo); });
  paso([&] { AjustarFormulario(entorno, dialogo, dialogo->size(), dialogo->size()); });
  const QScreen* pantalla = llamador ? llamador->screen() : dialogo->screen();
  if (pantalla) {
    const QRect caller = llamador ? llamador->frameGeometry() : pantalla->availableGeometry();
    dialogo->move(posicionar(caller, dialogo->size(), pantalla->availableGeometry()));
  }
}

void ColorearPaneles(Colorear& colorear, const QList<PanelObjNuevo*>& paneles) {
  const QColor principal = ColorDesdeTexto(colorear.get_ColorZoom1());
  const QColor secundario = ColorDesdeTexto(colorear.get_ColorZoom2());
  for (PanelObjNuevo* panel : paneles) {
    if (principal.isValid())
      panel->set_fondo_principal(ValorDeColor(principal));
    if (secundario.isValid())
      panel->set_fondo_secundario(ValorDeColor(secundario));
  }
}
