#pragma once

#include <QString>
#include <functional>
#include <stdexcept>

struct Entorno;
struct Instalacion;
class Conexion;

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
// Opens the shared connection, with exactly one retry on a fresh connection object; a second
// failure is logged. `abrir` opens one connection object (replaceable to watch the attempts).
using AbridorConexion = std::function<void(Conexion& conexion, const QString& cadena)>;
void AbrirConexion(Entorno& entorno, const AbridorConexion& abrir = {});

qint32 ObtenerEmpleado(Entorno& entorno);
void ObtenerEmpleadoYColor(Entorno& entorno);
void LeerColorPanelFamilias(Entorno& entorno);

// Opens a help page: the local copy in the "ayuda" folder when there is one, else the web.
void AbrirAyuda(Entorno& entorno, QString pagina);

// A folder of the options (the photo folder) relative to the installation's folder, so that a
// copied or moved installation keeps working; absolute paths and drive paths stand as given.
QString RutaDeInstalacion(const Instalacion& instalacion, const QString& ruta);

// The pictures folder of a database outside drive C, from the connection's default database
// path: the folder of "velandria.mdb" followed by "fotos" and a separator. The empty text for a
// database on drive C. Throws ErrorEjecucion for a database of another name (deliberately
// unguarded, as the suite has always behaved).
QString RutaFotosDeBase(const QString& rutaPredeterminada, bool* otraUnidad);
// Sets BDEnOtraUnidad and RutaFotosBD from the shared connection's database file; a server's
// database (PostgreSQL) has no file and leaves both as they are.
void UbicarBaseDeDatos(Entorno& entorno);
// Reads the installation's row of opciones into the session.
void LeerOpciones(Entorno& entorno);

// The start-up sequence; ends by calling mostrarFormulario (the products form, non-modal).
void Main(Entorno& entorno, const std::function<void()>& mostrarFormulario);
