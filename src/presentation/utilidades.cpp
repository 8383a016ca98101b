#include "utilidades.h"

#include <utility>

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QWidget>

#include "entorno.h"
#include "error_bd.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMaximoEntradas = 6;

}  // namespace

void RegistrarEntrada(Entorno& entorno, QWidget* formulario, qint32 empleado) {
  const QString formularioNombre = formulario->objectName();
  const QString codigo = QString::number(empleado);
  try {
    Recordset rs(*entorno.ConexionBD, u"Select * from entradas1 where formulario = '"_s +
                                          formularioNombre + u"' and empleado = '"_s + codigo +
                                          u"'"_s);
    if (rs.recordCount() == 0) {
      rs.addNew();
      rs.setField(u"Formulario"_s, formularioNombre);
      rs.setField(u"empleado"_s, codigo);
      rs.setField(u"entradas"_s, 1);
      rs.setField(u"ultimafecha"_s, QDate::currentDate().toString(u"dd/MM/yyyy"_s));
    } else {
      const int entradas = rs.field(u"entradas"_s).toInt();
      if (entradas < kMaximoEntradas)
        rs.setField(u"entradas"_s, entradas + 1);
    }
    rs.update();
    rs.close();
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(u"Utilidades  2"_s, e.descripcion());
  }
}

void SubirPrograma(Entorno& entorno, const QString& archivo) {
  const QString carpeta = entorno.instalacion.carpetaPrograma;
  QDir::setCurrent(carpeta);
  const QString ruta = entorno.instalacion.rutaEnCarpeta(archivo);
  const bool iniciado = entorno.dialogos->iniciarPrograma(ruta, carpeta);
  QCoreApplication::processEvents();
  if (!iniciado) {
    entorno.RegistrarError(u"SubirPrograma  48"_s, u"No se encontró el archivo: "_s + ruta);
  }
}

void CerrarPrograma(Entorno& entorno, const QString& nombreProceso) {
  while (entorno.dialogos->programaEnEjecucion(nombreProceso)) {
    if (!entorno.dialogos->cerrarPrograma(nombreProceso)) {
      // Asking again would never end: the instance that is left is reported instead.
      entorno.RegistrarError(u"CerrarPrograma  1"_s,
                             u"No se pudo cerrar el programa "_s + nombreProceso);
      return;
    }
  }
}

QString LeerTipoPrograma(Entorno& entorno) {
  QString tipo;
  try {
    Recordset rs(*entorno.ConexionBD, u"Select * from opciones where identificador = '"_s +
                                          entorno.sesion.IdentificadorInstalacion + u"'"_s);
    if (rs.recordCount() > 0)
      tipo = rs.field(u"tipo_programa"_s).toString();
    rs.close();
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(u"Utilidades  3"_s, e.descripcion());
  }
  return tipo;
}

namespace {

// The folder (with its final '/') and the name of a path, '\\' taken as the separator.
std::pair<QString, QString> PartesDeRuta(const QString& ruta) {
  QString r = ruta;
  r.replace(u'\\', u'/');
  const qsizetype barra = r.lastIndexOf(u'/');
  return {barra >= 0 ? r.left(barra + 1) : u"./"_s, r.mid(barra + 1)};
}

}  // namespace

qint16 BuscadorArchivos::existe(const QString& ruta) {
  if (ruta.isEmpty())
    return 0;
  const auto [carpeta, patron] = PartesDeRuta(ruta);
  const QFileInfo exacto(carpeta + patron);
  if (!patron.isEmpty() && !patron.contains(u'*') && !patron.contains(u'?') && exacto.isFile())
    return static_cast<qint16>(exacto.fileName().size());
  auto listado = listados_.find(carpeta);
  if (listado == listados_.end()) {
    QDir dir(carpeta);
    dir.setFilter(QDir::Files);  // hidden files are not "normal" ones
    dir.setSorting(QDir::Name | QDir::IgnoreCase);
    listado = listados_.insert(carpeta, dir.entryList());
  }
  if (patron.isEmpty() || patron == u"*"_s)  // the folder's first file, with no pattern to build
    return listado->isEmpty() ? 0 : static_cast<qint16>(listado->first().size());
  // The name is a pattern as a folder's name filter takes it, letter case ignored.
  const QRegularExpression re = QRegularExpression::fromWildcard(patron, Qt::CaseInsensitive);
  for (const QString& nombre : std::as_const(*listado)) {
    if (re.match(nombre).hasMatch())
      return static_cast<qint16>(nombre.size());
  }
  return 0;
}

qint16 ExisteArchivo(const QString& ruta) {
  return BuscadorArchivos().existe(ruta);
}
