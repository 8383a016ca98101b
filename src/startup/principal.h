#pragma once

#include <QString>
#include <functional>
#include <stdexcept>

struct Entorno;

// A failure that the start-up deliberately leaves unguarded: it ends the program with a message,
// as a run-time error would.
class ErrorEjecucion : public std::runtime_error {
 public:
  explicit ErrorEjecucion(const QString& texto)
      : std::runtime_error(texto.toStdString()), texto_(texto) {}
  const QString& texto() const { return texto_; }

 private:
  QString texto_;
};

// The reports data source's readers. A missing source or an empty table gives the empty text.
QString ObtenerTipoPrograma(const Entorno& entorno);
QString ObtenerList2(const Entorno& entorno);
QString ObtenerList1(const Entorno& entorno);

// The connection string of the main database for a program type (compared exactly).
QString CadenaConexion(const QString& tipoProgramaInformes);
// Opens the shared connection, with exactly one retry; a second failure is logged.
void AbrirConexion(Entorno& entorno);

qint32 ObtenerEmpleado(Entorno& entorno);
void ObtenerEmpleadoYColor(Entorno& entorno);
void LeerColorPanelFamilias(Entorno& entorno);

// Opens a help page: the local copy in the "ayuda" folder when there is one, else the web.
void AbrirAyuda(Entorno& entorno, QString pagina);

// The folder of the pictures when the database is on another drive; throws ErrorEjecucion for a
// database file that is not named "velandria.mdb" (deliberately unguarded).
void UbicarBaseDeDatos(Entorno& entorno);
// Reads the installation's row of opciones into the session.
void LeerOpciones(Entorno& entorno);

// The start-up sequence; ends by calling mostrarFormulario (the products form, non-modal).
void Main(Entorno& entorno, const std::function<void()>& mostrarFormulario);
