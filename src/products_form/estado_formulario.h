#pragma once

#include <QColor>
#include <QString>
#include <memory>

#include "recordset.h"

// The values that the products form keeps while it is open, shared by its features.
struct EstadoFormulario {
  // The kind of product on show: 1 simple, 2 elaborated.
  int tipo = 1;
  // The code of the product on show or being created.
  qint64 codigoActual = 0;
  // True while an existing product is being changed, false while a new one is created.
  bool modificando = false;

  // The button flags of new, modify and delete (and a fourth of the same kind). The load sets
  // them; the modes never switch on a button whose flag is false. An employee's restrictions
  // act on the buttons themselves, not on these flags.
  struct Permisos {
    bool nuevo = true;
    bool modificar = true;
    bool eliminar = true;
    bool cuarto = true;
  } permisos;

  // What the product being edited has chosen: colour (decimal text of the suite's colour
  // value; empty when none), picture file name (empty when none) and specific printer code
  // (empty or "0" when none).
  QString colorElegido;
  QString fotoElegida;
  QString impresoraElegida;

  // How many printers the printer list holds after its last load.
  qint16 numImpresoras = 0;

  // The form's product recordset: the products that navigation walks.
  std::unique_ptr<Recordset> productos;

  // The scheme's focus colour and its colour of entry controls.
  QColor colorFoco;
  QColor colorCampo;

  // Whether the list has a product, without counting them (which reads every row).
  bool hayProductos() const { return productos && !(productos->bof() && productos->eof()); }
};
