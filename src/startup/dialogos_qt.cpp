#include "dialogos_qt.h"

#include <signal.h>

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

QString TituloPrograma() {
  return u"Productos"_s;
}

namespace {

QString SinExe(QString nombre) {
  if (nombre.endsWith(u".exe"_s, Qt::CaseInsensitive))
    nombre.chop(4);
  return nombre;
}

}  // namespace

ServicioDialogos::Respuesta DialogosQt::mensaje(const QString& texto, const QString& titulo,
                                                Icono icono, Botones botones) {
  QMessageBox caja(QApplication::activeWindow());
  caja.setWindowTitle(titulo.isEmpty() ? TituloPrograma() : titulo);
  caja.setText(texto);
  switch (icono) {
    case Icono::Informacion:
      caja.setIcon(QMessageBox::Information);
      break;
    case Icono::Critico:
      caja.setIcon(QMessageBox::Critical);
      break;
    case Icono::Exclamacion:
      caja.setIcon(QMessageBox::Warning);
      break;
    case Icono::Pregunta:
      caja.setIcon(QMessageBox::Question);
      break;
    case Icono::Ninguno:
      break;
  }
  // Large buttons: the manager answers with a finger.
  caja.setStyleSheet(
      u"QPushButton { min-width: 120px; min-height: 48px; font-size: 16px; }"
      "QLabel { font-size: 16px; }"_s);
  auto boton = [&caja](const QString& texto, QMessageBox::ButtonRole rol) {
    return caja.addButton(texto, rol);
  };
  QAbstractButton* aceptar = nullptr;
  QAbstractButton* cancelar = nullptr;
  QAbstractButton* si = nullptr;
  QAbstractButton* no = nullptr;
  switch (botones) {
    case Botones::Aceptar:
      aceptar = boton(u"Aceptar"_s, QMessageBox::AcceptRole);
      break;
    case Botones::AceptarCancelar:
      aceptar = boton(u"Aceptar"_s, QMessageBox::AcceptRole);
      cancelar = boton(u"Cancelar"_s, QMessageBox::RejectRole);
      break;
    case Botones::SiNo:
    case Botones::SiNoPorDefectoNo:
      si = boton(u"Sí"_s, QMessageBox::YesRole);
      no = boton(u"No"_s, QMessageBox::NoRole);
      if (botones == Botones::SiNoPorDefectoNo)
        caja.setDefaultButton(static_cast<QPushButton*>(no));
      break;
    case Botones::SiNoCancelar:
      si = boton(u"Sí"_s, QMessageBox::YesRole);
      no = boton(u"No"_s, QMessageBox::NoRole);
      cancelar = boton(u"Cancelar"_s, QMessageBox::RejectRole);
      break;
  }
  caja.exec();
  const QAbstractButton* pulsado = caja.clickedButton();
  if (pulsado && pulsado == si)
    return Respuesta::Si;
  if (pulsado && pulsado == no)
    return Respuesta::No;
  if (pulsado && pulsado == aceptar)
    return Respuesta::Aceptar;
  Q_UNUSED(cancelar);
  return botones == Botones::SiNo || botones == Botones::SiNoPorDefectoNo ? Respuesta::No
                                                                          : Respuesta::Cancelar;
}

QString DialogosQt::abrirArchivo(const QString& titulo, const QString& carpeta,
                                 const QString& filtro) {
  return QFileDialog::getOpenFileName(QApplication::activeWindow(), titulo, carpeta, filtro);
}

std::optional<QColor> DialogosQt::elegirColor(const QColor& inicial) {
  const QColor c = QColorDialog::getColor(inicial, QApplication::activeWindow());
  if (!c.isValid())
    return std::nullopt;
  return c;
}

bool DialogosQt::abrirDocumento(const QString& documento) {
  const QUrl url = QFileInfo::exists(documento) ? QUrl::fromLocalFile(documento)
                                                : QUrl::fromUserInput(documento);
  return QDesktopServices::openUrl(url);
}

bool DialogosQt::iniciarPrograma(const QString& ruta, const QString& carpetaTrabajo) {
  return QProcess::startDetached(ruta, {}, carpetaTrabajo);
}

QList<qint64> ProcesosConNombre(const QString& nombreProceso, const QString& carpetaProc) {
  QList<qint64> pids;
  const QString buscado = SinExe(nombreProceso);
  const QStringList entradas = QDir(carpetaProc).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  for (const QString& entrada : entradas) {
    bool ok = false;
    const qint64 pid = entrada.toLongLong(&ok);
    if (!ok)
      continue;
    QFile cmdline(carpetaProc + u'/' + entrada + u"/cmdline"_s);
    if (!cmdline.open(QIODevice::ReadOnly))
      continue;
    const QByteArray bruto = cmdline.readAll();
    const QByteArray primero =
        bruto.left(bruto.indexOf('\0') < 0 ? bruto.size() : bruto.indexOf('\0'));
    const QString programa = QFileInfo(QString::fromLocal8Bit(primero)).fileName();
    if (SinExe(programa).compare(buscado, Qt::CaseInsensitive) == 0)
      pids.append(pid);
  }
  return pids;
}

bool DialogosQt::programaEnEjecucion(const QString& nombreProceso) {
  return !ProcesosConNombre(nombreProceso, u"/proc"_s).isEmpty();
}

bool DialogosQt::cerrarPrograma(const QString& nombreProceso) {
  const QList<qint64> pids = ProcesosConNombre(nombreProceso, u"/proc"_s);
  if (pids.isEmpty())
    return false;
  return ::kill(static_cast<pid_t>(pids.first()), SIGTERM) == 0;
}
