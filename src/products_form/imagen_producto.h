#pragma once

#include <QImage>
#include <QString>
#include <QtGlobal>
#include <optional>

class ServicioDialogos;
struct Entorno;

inline const QString kContextoCopiarImagen = QStringLiteral("Imagen  1");

// Pictures larger than this are refused on the simple products' screen, so that the till's
// buttons stay quick to draw; the elaborated products' screen has never had the limit.
inline constexpr qint64 kTamanoMaximoImagen = 75000;

inline const QString kMensajeImagenGrande = QStringLiteral(
    "El archivo seleccionado es demasiado grande, es necesario que seleccione una imagen mas "
    "pequeña para que el programa funcione de forma optima.\r\nNo use imagenes superiores a 75 "
    "kb de tamaño");
inline const QString kTituloImagenGrande = QStringLiteral("Imagen demasiado grande");
inline const QString kMensajeImagenNoValida =
    QStringLiteral("La imágen indicada no tiene un formato válido");

// Which screen asks: the simple products' (with the size limit, copying into the program's
// "fotos" folder) or the elaborated products' (no limit, copying into the photo folder of the
// installation's options).
enum class PantallaImagen { General = 1, Elaborados = 2 };

struct ImagenElegida {
  QString archivo;  // the file's name without folder: what the product's Foto keeps
  QImage imagen;    // the picture, for the screen's picture box
};

// The folder that pictures are chosen from and copied to on a screen.
QString CarpetaImagenes(const Entorno& entorno, PantallaImagen pantalla);

// Checks a chosen file and copies it into the screen's folder. A file too large for the screen
// or that is no picture is refused with its message and gives nothing (the previous choice
// stands). A file whose name is already in the folder is not copied again: the file there is
// kept, and the product points at it. A failed copy is logged; the choice stands.
std::optional<ImagenElegida> AceptarImagen(Entorno& entorno, PantallaImagen pantalla,
                                           const QString& ruta);
// Shows the open-file dialog on the screen's folder, then AceptarImagen. A cancelled dialog
// changes nothing.
std::optional<ImagenElegida> ElegirImagen(Entorno& entorno, PantallaImagen pantalla);

// The colour dialog, opened on the current colour (white when there is none): the chosen
// colour's stored value as decimal text, nothing when cancelled.
std::optional<QString> ElegirColor(ServicioDialogos& dialogos, const QString& colorActual);
