#include "permisos.h"

#include <QStringList>
#include <QWidget>

#include "conexion.h"
#include "controles.h"
#include "error_bd.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

bool SiemprePermitido(const QString& boton) {
  static const QStringList kSiempre{u"cmd_ayuda"_s,    u"cmdayuda"_s,   u"cmdsalir"_s,
                                    u"cmd_salir"_s,    u"cmdPrimero"_s, u"cmdAnterior"_s,
                                    u"cmdSiguiente"_s, u"cmdUltimo"_s};
  for (const QString& nombre : kSiempre) {
    if (boton.contains(nombre, Qt::CaseInsensitive))
      return true;
  }
  return false;
}

void AplicarRestricciones(Conexion& conexion, QWidget* formulario, qint32 empleado) {
  Recordset rs(conexion,
               u"Select boton, boton_auxiliar from atributos,empleadosatributos where "
               "empleadosatributos.codEmpleado = "_s +
                   QString::number(empleado) + u" and atributos.form = '"_s +
                   formulario->objectName() +
                   u"' and atributos.codigo = empleadosatributos.codatributo"_s);
  QStringList sinControl;
  const auto buscar = [&](const QString& nombre) {
    QWidget* control = BuscarControl(formulario, nombre);
    if (!control)
      sinControl.append(nombre);
    return control;
  };
  if (rs.recordCount() > 0) {
    while (!rs.eof()) {
      if (QWidget* boton = buscar(rs.field(u"boton"_s).toString())) {
        boton->setEnabled(false);
        boton->setProperty("restringido", true);
      }
      const QVariant auxiliar = rs.field(u"boton_auxiliar"_s);
      if (!auxiliar.isNull() && !auxiliar.toString().isEmpty()) {
        if (QWidget* control = buscar(auxiliar.toString()))
          control->setVisible(false);
      }
      rs.moveNext();
    }
  }
  rs.close();
  if (!sinControl.isEmpty()) {
    throw ErrorBD(u"El formulario %1 no tiene el control %2"_s.arg(formulario->objectName(),
                                                                   sinControl.join(u", "_s)));
  }
}

bool EstaRestringido(const QWidget* control) {
  return control->property("restringido").toBool();
}

void Habilitar(QWidget* control, bool activo) {
  control->setEnabled(activo && !EstaRestringido(control));
}

qint32 SiguienteCodigoAtributo(Conexion& conexion) {
  Recordset rs(conexion, u"Select max(codigo) as maximo from atributos"_s);
  qint32 siguiente = 1;
  if (rs.recordCount() > 0 && !rs.isNull(u"maximo"_s)) {
    siguiente = rs.field(u"maximo"_s).toInt() + 1;
  }
  rs.close();
  return siguiente;
}

bool ExisteAtributo(Conexion& conexion, const QString& formulario, const QString& boton) {
  if (SiemprePermitido(boton))
    return true;
  Recordset rs(conexion, u"Select * from atributos where form = '"_s + formulario +
                             u"' and boton = '"_s + boton + u"'"_s);
  const bool existe = rs.recordCount() > 0;
  rs.close();
  return existe;
}

void GenerarAtributos(Conexion& conexion, QWidget* formulario) {
  qint32 codigo = SiguienteCodigoAtributo(conexion);
  const QString nombre = formulario->objectName();
  const QList<QWidget*> controles = ControlesDe(formulario);
  for (const QWidget* control : controles) {
    if (TipoDe(control) != TipoControl::Boton)
      continue;
    const QString caption = CaptionDe(control);
    if (caption.isEmpty() || ExisteAtributo(conexion, nombre, control->objectName()))
      continue;
    // Captions go in as they are: one with an apostrophe breaks the statement, and the error
    // reaches the caller like any other database failure.
    conexion.ejecutar(u"insert into atributos (codigo,form,form_desc,boton,boton_desc) values ("_s +
                      QString::number(codigo) + u",'"_s + nombre + u"','"_s +
                      formulario->windowTitle() + u"','"_s + control->objectName() + u"','"_s +
                      caption + u"')"_s);
    ++codigo;
  }
}
