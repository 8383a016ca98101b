#include "utilidades.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
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

qint16 ExisteArchivo(const QString& ruta) {
  if (ruta.isEmpty())
    return 0;
  QString r = ruta;
  r.replace(u'\\', u'/');
  const qsizetype barra = r.lastIndexOf(u'/');
  const QString carpeta = barra >= 0 ? r.left(barra + 1) : u"./"_s;
  QString patron = r.mid(barra + 1);
  if (patron.isEmpty())
    patron = u"*"_s;

  const QFileInfo exacto(r);
  if (!patron.contains(u'*') && !patron.contains(u'?') && exacto.isFile()) {
    return static_cast<qint16>(exacto.fileName().size());
  }
  QDir dir(carpeta);
  dir.setNameFilters({patron});
  dir.setFilter(QDir::Files);  // hidden files are not "normal" ones
  dir.setSorting(QDir::Name | QDir::IgnoreCase);
  const QStringList nombres = dir.entryList();
  return nombres.isEmpty() ? 0 : static_cast<qint16>(nombres.first().size());
}
