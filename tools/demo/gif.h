#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QRgb>

// The GIF writer of the default picture "defecto.gif": Qt reads GIF but cannot write it, so the
// picture is reduced to the fixed palette below and written by giflib, one image with no
// transparency.

// The fixed palette: the 216 colours of the 6x6x6 web cube (index = 36r + 6g + b, each level a
// multiple of 51), then 40 greys that the cube lacks, from dark to light.
const QList<QRgb>& PaletaGif();
// The index of the palette colour nearest to a colour (alpha is ignored).
int IndicePaleta(QRgb color);
// The GIF file of a picture. Empty for a null picture or one wider or taller than 65535 pixels,
// which a GIF cannot describe.
QByteArray CodificarGif(const QImage& imagen);
