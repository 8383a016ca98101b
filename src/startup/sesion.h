#pragma once

#include <QString>
#include <QtGlobal>

// The session variables: who and where this terminal is, and its options. Written once by the
// start-up sequence (the colour scheme may change later) and read by every form.
struct Sesion {
  QString IdentificadorInstalacion;
  QString IdentificadorLista1;
  QString IdentificadorTerminal;
  QString TipoProgramaInformes;
  qint16 ModoPrograma = -1;  // 1 "FASTFOOD", 4 "COPAS", -1 anything else
  bool BDEnOtraUnidad = false;
  QString RutaFotosBD;
  qint16 numDecimales = 0;
  QString tipo_programa;
  QString rutaFotos;
  QString idioma;  // "CASTELLANO" when the installation's row leaves it empty
  qint16 modocaja = 1;
  bool animacioncaja = false;
  bool ColorPanelFamilias = false;
  qint32 EmpleadoActual = 0;
  qint32 EmpleadoTerminal = 0;
  qint16 id_color = 0;
};
