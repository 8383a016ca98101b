#include <QApplication>
#include <QLabel>

#include "dialogos_qt.h"
#include "entorno.h"
#include "frm_error.h"
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
  QLabel forma(u"Productos"_s);
  try {
    Main(entorno, [&forma] { forma.show(); });
  } catch (const ErrorEjecucion& e) {
    dialogos.mensaje(e.texto(), TituloPrograma(), ServicioDialogos::Icono::Critico);
    return 1;
  }
  return app.exec();
}
