#include <QApplication>
#include <memory>

#include "capturas.h"
#include "dialogos_qt.h"
#include "entorno.h"
#include "frm_error.h"
#include "frm_productos.h"
#include "paneles.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  DialogosQt dialogos;
  Entorno entorno(Instalacion::Cargar(Instalacion::CarpetaPorDefecto()), dialogos);
  FrmError frmError;
  entorno.registro.setMostrar([&frmError](const QString& contexto, const QString& descripcion) {
    frmError.mostrarError(contexto, descripcion);
  });
  TablasPanel tablas;
  std::unique_ptr<FrmProductos1024> forma;
  try {
    Main(entorno, [&] {
      forma = std::make_unique<FrmProductos1024>(entorno, tablas);
      forma->show();
    });
  } catch (const ErrorEjecucion& e) {
    dialogos.mensaje(e.texto(), TituloPrograma(), ServicioDialogos::Icono::Critico);
    return 1;
  }
  // With no display the screens are rendered to PNG files instead.
  const QString capturas = qEnvironmentVariable("PRODUCTOS_CAPTURAS");
  if (!capturas.isEmpty() && forma)
    return GuardarCapturas(forma.get(), capturas) > 0 ? 0 : 1;
  return app.exec();
}
