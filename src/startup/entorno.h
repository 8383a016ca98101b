#pragma once

#include <memory>

#include "conexion.h"
#include "dialogos.h"
#include "instalacion.h"
#include "registro_errores.h"
#include "sesion.h"

// What the start-up sequence owns for the whole run and every form uses: the installation, the
// session variables, the shared connection, the error log and the dialog service.
struct Entorno {
  Entorno(Instalacion inst, ServicioDialogos& servicio)
      : instalacion(std::move(inst)),
        ConexionBD(std::make_unique<Conexion>()),
        registro(instalacion.carpetaPrograma),
        dialogos(&servicio) {}

  Instalacion instalacion;
  Sesion sesion;
  std::unique_ptr<Conexion> ConexionBD;
  RegistroErrores registro;
  ServicioDialogos* dialogos;

  void RegistrarError(const QString& contexto, const QString& descripcion) {
    const QString fallo = registro.RegistrarError(contexto, descripcion);
    if (!fallo.isEmpty())
      dialogos->mensaje(fallo, TituloPrograma(), ServicioDialogos::Icono::Critico);
  }
};
