#include "principal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <memory>

#include "entorno.h"
#include "error_bd.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kCadenaInformes = u"dsn=informes"_s;

QString LeerInformes(const Entorno& entorno, const QString& sentencia, const QString& campo) {
  try {
    Conexion informes;
    informes.abrir(kCadenaInformes, entorno.instalacion.origenes);
    Recordset rs(informes, sentencia);
    QString resultado;
    if (rs.recordCount() > 0)
      resultado = rs.field(campo).toString();
    rs.close();
    return resultado;
  } catch (const ErrorBD&) {
    return {};
  }
}

qint16 Entero16(const QVariant& v) {
  return static_cast<qint16>(v.toInt());
}

}  // namespace

QString ObtenerTipoPrograma(const Entorno& entorno) {
  return LeerInformes(entorno, u"Select tipoPrograma from listadostemporal"_s, u"tipoPrograma"_s);
}

QString ObtenerList2(const Entorno& entorno) {
  return LeerInformes(entorno, u"Select list2 from listadostemporal"_s, u"List2"_s);
}

QString ObtenerList1(const Entorno& entorno) {
  return LeerInformes(entorno, u"Select list1 from listadostemporal"_s, u"list1"_s);
}

QString CadenaConexion(const QString& tipo) {
  if (tipo == u"RESTAURANTE"_s)
    return u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s;
  if (tipo == u"FASTFOOD"_s)
    return u"dsn=lumbraFastFood;pwd=KorvanitesX%QQRT;"_s;
  if (tipo == u"COPAS"_s)
    return u"dsn=lumbraCopas;pwd=KorvanitesX%QQRT;"_s;
  return {};
}

void AbrirConexion(Entorno& entorno, const AbridorConexion& abridor) {
  const AbridorConexion abrir =
      abridor ? abridor : [&entorno](Conexion& conexion, const QString& cadena) {
        conexion.abrir(cadena, entorno.instalacion.origenes);
      };
  const QString cadena = CadenaConexion(entorno.sesion.TipoProgramaInformes);
  entorno.ConexionBD = std::make_unique<Conexion>();
  try {
    abrir(*entorno.ConexionBD, cadena);
    return;
  } catch (const ErrorBD&) {
  }
  entorno.ConexionBD = std::make_unique<Conexion>();
  try {
    abrir(*entorno.ConexionBD, cadena);
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(u"Base de datos  16"_s, e.descripcion());
  }
}

qint32 ObtenerEmpleado(Entorno& entorno) {
  Recordset rs(*entorno.ConexionBD,
               u"Select empleado from opciones_terminal where identificador = '"_s +
                   entorno.sesion.IdentificadorTerminal + u"'"_s);
  qint32 resultado = 0;
  if (rs.recordCount() > 0) {
    const QVariant v = rs.field(u"empleado"_s);
    resultado = v.isNull() ? -1 : v.toInt();
  }
  rs.close();
  return resultado;
}

void ObtenerEmpleadoYColor(Entorno& entorno) {
  Recordset rs(*entorno.ConexionBD,
               u"SElect empleado,id_color from opciones_terminal where identificador = '"_s +
                   entorno.sesion.IdentificadorTerminal + u"'"_s);
  if (rs.recordCount() > 0) {
    const QVariant empleado = rs.field(u"empleado"_s);
    const QVariant color = rs.field(u"id_color"_s);
    entorno.sesion.EmpleadoTerminal = empleado.isNull() ? 0 : empleado.toInt();
    entorno.sesion.id_color = color.isNull() ? 0 : Entero16(color);
  }
  rs.close();
}

void LeerColorPanelFamilias(Entorno& entorno) {
  const QString indice = u"opcion_color_panel_familias"_s;
  Recordset rs(*entorno.ConexionBD,
               u"select * from relaciones_fijas where indice like 'opcion_color_panel_familias'"_s);
  if (rs.recordCount() < 1) {
    entorno.sesion.ColorPanelFamilias = entorno.sesion.modocaja == 1;
    rs.addNew();
    rs.setField(u"indice"_s, indice);
    rs.setField(u"daton"_s, entorno.sesion.ColorPanelFamilias ? -1 : 0);
    rs.update();
  } else if (rs.field(u"indice"_s).toString() == indice) {
    const QVariant daton = rs.field(u"daton"_s);
    entorno.sesion.ColorPanelFamilias = !daton.isNull() && daton.toInt() != 0;
  }
  rs.close();
}

void AbrirAyuda(Entorno& entorno, QString pagina) {
  if (pagina.isEmpty())
    return;
  if (!pagina.contains(u"www."_s)) {
    const QString local = QDir(entorno.instalacion.rutaEnCarpeta(u"ayuda"_s)).filePath(pagina);
    // The pages that the package installs beside the program (share/productos/ayuda) serve an
    // installation that has none of its own.
    const QString instalada = QDir(QCoreApplication::applicationDirPath())
                                  .filePath(u"../share/productos/ayuda/"_s + pagina);
    if (QFileInfo::exists(local))
      pagina = local;
    else if (QFileInfo::exists(instalada))
      pagina = QDir::cleanPath(instalada);
    else
      pagina = entorno.instalacion.ayudaWeb + pagina;
  }
  if (entorno.dialogos->abrirDocumento(pagina))
    return;
  // With no browser or launcher on the terminal the manager must hear why nothing opened.
  const QString aviso =
      u"No se ha podido abrir la ayuda: no hay un navegador instalado que la muestre."_s;
  entorno.dialogos->mensaje(aviso + u"\r\n"_s + pagina, TituloPrograma(),
                            ServicioDialogos::Icono::Exclamacion);
  entorno.RegistrarError(u"Ayuda  1"_s, aviso + u" "_s + pagina);
}

QString RutaFotosDeBase(const QString& ruta, bool* otraUnidad) {
  *otraUnidad = ruta.left(1).toUpper() != u"C"_s;
  if (!*otraUnidad)
    return {};
  const QString p = ruta + u".mdb"_s;
  const qsizetype posicion = p.toLower().indexOf(u"velandria.mdb"_s) + 1;
  if (posicion - 1 < 0) {
    throw ErrorEjecucion(
        u"Error 5 en tiempo de ejecución: llamada a procedimiento o argumento no válido (la base "
        "de datos %1 no se llama velandria.mdb)"_s.arg(p));
  }
  return p.left(posicion - 1) + u"fotos"_s + QDir::separator();
}

void UbicarBaseDeDatos(Entorno& entorno) {
  Sesion& s = entorno.sesion;
  // Only a database file lies on a drive and has a file name; a server's database has neither.
  if (entorno.ConexionBD->motor() == Motor::PostgreSQL)
    return;
  bool otraUnidad = false;
  const QString fotos = RutaFotosDeBase(entorno.ConexionBD->rutaPredeterminada(), &otraUnidad);
  s.BDEnOtraUnidad = otraUnidad;
  if (otraUnidad)
    s.RutaFotosBD = fotos;
}

QString RutaDeInstalacion(const Instalacion& instalacion, const QString& ruta) {
  static const QRegularExpression kUnidad(u"^[A-Za-z]:"_s);
  if (ruta.isEmpty() || !QDir::isRelativePath(ruta) || kUnidad.match(ruta).hasMatch())
    return ruta;
  return QDir(instalacion.carpetaPrograma).filePath(ruta);
}

void LeerOpciones(Entorno& entorno) {
  Sesion& s = entorno.sesion;
  std::unique_ptr<Recordset> rs;
  try {
    rs = std::make_unique<Recordset>(
        *entorno.ConexionBD,
        u"Select * from opciones where identificador = '"_s + s.IdentificadorInstalacion + u"'"_s);
  } catch (const ErrorBD& e) {
    // Only the open is logged; the options keep their defaults.
    entorno.RegistrarError(u"opciones  1"_s, e.descripcion());
    return;
  }
  // Each option is read on its own: one that cannot be read keeps its default and the next is
  // read all the same.
  const auto leer = [&rs](const QString& campo, const std::function<void(const QVariant&)>& usar) {
    try {
      usar(rs->field(campo));
    } catch (const ErrorBD&) {
    }
  };
  if (rs->recordCount() > 0) {
    leer(u"numDecimales"_s,
         [&](const QVariant& v) { s.numDecimales = v.isNull() ? qint16(0) : Entero16(v); });
    leer(u"Terminal"_s, [](const QVariant&) {});  // read, not kept
    leer(u"tipo_programa"_s, [&](const QVariant& v) { s.tipo_programa = v.toString(); });
    leer(u"rutaFotos"_s, [&](const QVariant& v) {
      if (!v.isNull())
        s.rutaFotos = RutaDeInstalacion(entorno.instalacion, v.toString());
    });
    leer(u"idioma"_s, [&](const QVariant& v) {
      s.idioma = v.isNull() || v.toString().isEmpty() ? u"CASTELLANO"_s : v.toString();
    });
    leer(u"modocaja"_s,
         [&](const QVariant& v) { s.modocaja = v.isNull() ? qint16(1) : Entero16(v); });
    leer(u"animacioncaja"_s, [&](const QVariant& v) { s.animacioncaja = v.toInt() == -1; });
  }
  rs->close();
}

void Main(Entorno& entorno, const std::function<void()>& mostrarFormulario) {
  Sesion& s = entorno.sesion;
  s.IdentificadorInstalacion = ObtenerList2(entorno);
  s.IdentificadorLista1 = ObtenerList1(entorno);
  s.ModoPrograma = -1;
  s.TipoProgramaInformes = ObtenerTipoPrograma(entorno);
  if (s.TipoProgramaInformes == u"FASTFOOD"_s) {
    s.ModoPrograma = 1;
  } else if (s.TipoProgramaInformes == u"COPAS"_s) {
    s.ModoPrograma = 4;
  }
  s.IdentificadorTerminal = s.IdentificadorInstalacion + s.IdentificadorLista1;
  QCoreApplication::processEvents();
  AbrirConexion(entorno);
  // Without an open connection there is no database path to look at.
  if (entorno.ConexionBD->abierta())
    UbicarBaseDeDatos(entorno);
  LeerOpciones(entorno);
  // Without a connection (already logged) the terminal's readers keep their defaults and the
  // form still opens, so that the manager sees what happened.
  if (entorno.ConexionBD->abierta()) {
    try {
      LeerColorPanelFamilias(entorno);
      s.EmpleadoActual = ObtenerEmpleado(entorno);
      ObtenerEmpleadoYColor(entorno);
    } catch (const ErrorBD& e) {
      entorno.RegistrarError(u"Principal  1"_s, e.descripcion());
    }
  }
  mostrarFormulario();
}
