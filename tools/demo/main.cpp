#include <QGuiApplication>
#include <QTextStream>

#include "instalacion_demo.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char* argv[]) {
  // The pictures are drawn with fonts, which needs a GUI application but never a screen.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QTextStream salida(stdout);
  QTextStream errores(stderr);
  QString error;
  const std::optional<OpcionesDemo> opciones = LeerArgumentos(app.arguments(), &error);
  if (!opciones) {
    errores << error << Qt::endl;
    return 2;
  }
  const ResultadoDemo resultado = CrearInstalacionDemo(*opciones);
  (resultado.creada ? salida : errores) << resultado.mensaje << Qt::endl;
  return resultado.creada ? 0 : 1;
}
