#include "instalacion_demo.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <stdexcept>

#include "cargar_catalogo.h"
#include "conexion.h"
#include "error_bd.h"
#include "esquema.h"
#include "imagenes_demo.h"
#include "paginas_ayuda.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kPrincipal = u"velandria.db"_s;
const QString kInformes = u"informes.db"_s;
const QString kIni = u"productos.ini"_s;
const QString kTarvelo = u"Tarvelo.exe"_s;
const QString kLeeme = u"LEEME.txt"_s;

void EscribirTexto(const QString& ruta, const QString& texto) {
  QFile archivo(ruta);
  const QByteArray bytes = texto.toUtf8();
  if (!archivo.open(QIODevice::WriteOnly) || archivo.write(bytes) != bytes.size()) {
    throw std::runtime_error("cannot write " + ruta.toStdString());
  }
}

void CrearBase(const QString& ruta, const QList<Tabla>& tablas,
               const std::function<void(Conexion&)>& llenar) {
  Conexion c;
  c.abrirSQLite(ruta);
  CrearEsquema(c, tablas);
  llenar(c);
  c.cerrar();
}

QString TextoLeeme(const OpcionesDemo& o) {
  return uR"(Instalación de demostración de Productos - Casa Velandria
==========================================================

Abra el programa con esta carpeta como carpeta del programa:

    PRODUCTOS_CARPETA="%1" productos

Qué contiene
- velandria.db: la base de datos del restaurante (familias, productos, proveedores, recetas,
  sub-productos, menús, impresoras, esquemas de color, traducciones y permisos).
- informes.db: indica el tipo de programa (RESTAURANTE), la instalación (INST1) y el terminal
  (%2).
- fotos/: una imagen por familia y por muchos productos, y defecto.gif.
- ayuda/: las páginas de ayuda del programa.
- Tarvelo.exe: sustituye al programa de precios; cada vez que se abre anota en Tarvelo.log el
  contenido de ModoPrecio.txt.

Para probar
- Terminal T1: la encargada, Carmen Ruiz, sin restricciones, esquema de color "Azul mar".
- Terminal T2: Andrés Gil, en prácticas: no puede eliminar productos ni abrir los precios.
  Para usarlo, cree de nuevo la instalación con --terminal T2.
- En inglés: cree la instalación con --idioma INGLES (los textos de la pantalla salen de la
  tabla traducciones).
- Hay productos sin foto (salen con defecto.gif), dos productos eliminados, dos proveedores dados
  de baja y un Capuchino cuya impresora específica ya no existe.
)"_s.arg(QDir::toNativeSeparators(o.carpeta), o.terminal);
}

// Builds every file of the installation in `obra`.
void Construir(const QString& obra, const OpcionesDemo& o) {
  const QDir dir(obra);
  if (!dir.mkpath(u"fotos"_s) || !dir.mkpath(u"ayuda"_s)) {
    throw std::runtime_error("cannot create the folders of the installation");
  }
  EscribirFotos(dir.filePath(u"fotos"_s));
  EscribirAyuda(dir.filePath(u"ayuda"_s));
  // Relative to the installation's folder, so that a copied or moved installation keeps its
  // pictures.
  const QString rutaFotos = u"fotos"_s + QDir::separator();
  CrearBase(dir.filePath(kPrincipal), TablasPrincipales(),
            [&](Conexion& c) { LlenarBasePrincipal(c, rutaFotos, o.idioma, o.esquema); });
  CrearBase(dir.filePath(kInformes), TablasInformes(),
            [&](Conexion& c) { LlenarBaseInformes(c, o.terminal); });
  EscribirTexto(dir.filePath(kIni), TextoProductosIni());
  EscribirTexto(dir.filePath(kTarvelo), TextoTarvelo());
  QFile tarvelo(dir.filePath(kTarvelo));
  if (!tarvelo.setPermissions(tarvelo.permissions() | QFile::ExeOwner | QFile::ExeGroup |
                              QFile::ExeOther)) {
    throw std::runtime_error("cannot make Tarvelo.exe executable");
  }
  EscribirTexto(dir.filePath(kLeeme), TextoLeeme(o));
}

// Moves the built files into place, replacing files of the same name and keeping the rest (the
// error log, pictures that the manager added).
void Mover(const QString& origen, const QString& destino) {
  const QDir dirOrigen(origen);
  if (!QDir().mkpath(destino))
    throw std::runtime_error("cannot create " + destino.toStdString());
  const QFileInfoList entradas =
      dirOrigen.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
  for (const QFileInfo& e : entradas) {
    const QString meta = QDir(destino).filePath(e.fileName());
    if (e.isDir()) {
      Mover(e.absoluteFilePath(), meta);
      continue;
    }
    if (QFileInfo::exists(meta) && !QFile::remove(meta)) {
      throw std::runtime_error("cannot replace " + meta.toStdString());
    }
    if (!QFile::rename(e.absoluteFilePath(), meta)) {
      throw std::runtime_error("cannot move " + meta.toStdString());
    }
  }
}

}  // namespace

bool EsInstalacion(const QString& carpeta) {
  const QDir dir(carpeta);
  for (const QString& archivo : {kIni, kPrincipal, kInformes}) {
    if (QFileInfo::exists(dir.filePath(archivo)))
      return true;
  }
  return false;
}

ResultadoDemo CrearInstalacionDemo(const OpcionesDemo& opciones) {
  const QString destino = QDir(opciones.carpeta).absolutePath();
  if (EsInstalacion(destino) && !opciones.reemplazar) {
    return {false,
            u"La carpeta %1 ya contiene una instalación; no se ha cambiado nada. Use "
            "--reemplazar para sustituirla."_s.arg(QDir::toNativeSeparators(destino))};
  }
  if (!QDir().mkpath(destino)) {
    return {false, u"No se puede crear la carpeta %1."_s.arg(QDir::toNativeSeparators(destino))};
  }
  // The work folder sits inside the destination, on the same disk, so that moving is renaming.
  QTemporaryDir obra(QDir(destino).filePath(u".productos-demo-XXXXXX"_s));
  if (!obra.isValid()) {
    return {false,
            u"No se puede escribir en la carpeta %1."_s.arg(QDir::toNativeSeparators(destino))};
  }
  try {
    Construir(obra.path(), opciones);
  } catch (const ErrorBD& e) {
    return {false, u"No se ha podido crear la base de datos: %1"_s.arg(e.descripcion())};
  } catch (const std::exception& e) {
    return {false, u"No se ha podido crear la instalación: %1"_s.arg(QString::fromUtf8(e.what()))};
  }
  try {
    Mover(obra.path(), destino);
  } catch (const std::exception& e) {
    return {false, u"La instalación ha quedado incompleta: %1"_s.arg(QString::fromUtf8(e.what()))};
  }
  return {true, u"Instalación de demostración creada en %1 (terminal %2, idioma %3)."_s.arg(
                    QDir::toNativeSeparators(destino), opciones.terminal, opciones.idioma)};
}

std::optional<OpcionesDemo> LeerArgumentos(const QStringList& argumentos, QString* error) {
  QCommandLineParser p;
  p.setApplicationDescription(u"Crea una instalación de demostración de Productos."_s);
  const QCommandLineOption reemplazar(u"reemplazar"_s,
                                      u"Sustituye los archivos de una instalación existente."_s);
  const QCommandLineOption idioma(u"idioma"_s, u"Idioma de la instalación (CASTELLANO)."_s,
                                  u"idioma"_s, u"CASTELLANO"_s);
  const QCommandLineOption terminal(u"terminal"_s, u"Terminal: T1 (encargada) o T2 (prácticas)."_s,
                                    u"terminal"_s, u"T1"_s);
  const QCommandLineOption esquema(u"esquema"_s, u"Esquema de color de los terminales (1 a 5)."_s,
                                   u"esquema"_s, u"0"_s);
  p.addOptions({reemplazar, idioma, terminal, esquema});
  p.addPositionalArgument(u"carpeta"_s, u"Carpeta de la instalación."_s);
  const QString uso =
      u"Uso: productos-demo [--reemplazar] [--idioma IDIOMA] [--terminal T1|T2] [--esquema N] "
      "<carpeta>"_s;
  if (!p.parse(argumentos)) {
    if (error)
      *error = p.errorText() + u'\n' + uso;
    return std::nullopt;
  }
  if (p.positionalArguments().size() != 1) {
    if (error)
      *error = uso;
    return std::nullopt;
  }
  OpcionesDemo o;
  o.carpeta = p.positionalArguments().first();
  o.reemplazar = p.isSet(reemplazar);
  o.idioma = p.value(idioma).trimmed().toUpper();
  o.terminal = p.value(terminal).trimmed().toUpper();
  o.esquema = p.value(esquema).toInt();
  if (o.idioma.isEmpty() || o.idioma.contains(u'\'')) {
    if (error)
      *error = u"El idioma no es válido."_s;
    return std::nullopt;
  }
  if (o.terminal != u"T1"_s && o.terminal != u"T2"_s) {
    if (error)
      *error = u"El terminal debe ser T1 o T2."_s;
    return std::nullopt;
  }
  return o;
}

QString TextoProductosIni() {
  return uR"(; Configuración de la instalación de demostración de Productos.
; Los orígenes de datos con nombre del programa son archivos SQLite de esta carpeta.

[dsn velandria]
tipo=sqlite
archivo=velandria.db

[dsn informes]
tipo=sqlite
archivo=informes.db

[ayuda]
; Las páginas que no estén en la carpeta ayuda se abren bajo esta dirección.
web=https://ayuda.productos.invalid/

[traduccion]
; Textos de marca que nunca se recogen para traducir, separados por |.
excluir=)"_s +
         QString::fromUtf16(kTextosExcluidos) + u"\n"_s;
}

QString TextoTarvelo() {
  return uR"sh(#!/bin/sh
# Sustituto del programa de precios en la instalación de demostración: anota cada arranque y el
# modo que el programa de productos le pasa en ModoPrecio.txt.
carpeta=$(dirname "$0")
{
  printf '%s ModoPrecio=' "$(date '+%d/%m/%Y %H:%M:%S')"
  cat "$carpeta/ModoPrecio.txt" 2>/dev/null || printf '(sin archivo)'
  printf '\n'
} >> "$carpeta/Tarvelo.log"
)sh"_s;
}
