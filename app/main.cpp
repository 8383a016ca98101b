#include <QApplication>
#include <QTextStream>
#include <QTranslator>
#include <memory>

#include "capturas.h"
#include "colorear.h"
#include "dialogos_guion.h"
#include "dialogos_qt.h"
#include "entorno.h"
#include "frm_error.h"
#include "frm_productos.h"
#include "paneles.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QTranslator textosQt;
  if (!CargarTraduccionesQt(app, textosQt))
    QTextStream(stderr) << "No se encuentran los textos en español de Qt (qt6-translations-l10n)\n";
  // With no display the screens are rendered to PNG files, and nobody can answer a message box:
  // the messages are answered as Enter would and written to the standard error instead.
  const QString capturas = qEnvironmentVariable("PRODUCTOS_CAPTURAS");
  DialogosQt dialogosQt;
  DialogosGuion dialogosGuion;
  ServicioDialogos& dialogos =
      capturas.isEmpty() ? static_cast<ServicioDialogos&>(dialogosQt) : dialogosGuion;
  Entorno entorno(Instalacion::Cargar(Instalacion::CarpetaPorDefecto()), dialogos);
  FrmError frmError;
  entorno.registro.setMostrar([&](const QString& contexto, const QString& descripcion) {
    if (entorno.ConexionBD->abierta()) {
      try {
        PintarFrmError(entorno, &frmError);
      } catch (...) {
        // The error form shows in its design colours when the scheme cannot be read.
      }
    }
    frmError.mostrarError(contexto, descripcion);
  });
  TablasPanel tablas;
  std::unique_ptr<FrmProductos1024> forma;
  int resultado = 0;
  try {
    Main(entorno, [&] {
      forma = std::make_unique<FrmProductos1024>(entorno, tablas);
      forma->show();
    });
    if (!capturas.isEmpty()) {
      resultado = forma && GuardarCapturas(forma.get(), capturas) > 0 ? 0 : 1;
    } else {
      resultado = app.exec();
    }
  } catch (const ErrorEjecucion& e) {
    dialogos.mensaje(e.texto(), TituloPrograma(), ServicioDialogos::Icono::Critico);
    resultado = 1;
  }
  QTextStream err(stderr);
  for (const QString& mensaje : dialogosGuion.mensajes())
    err << mensaje << u'\n';
  return resultado;
}
