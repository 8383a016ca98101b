#include "dialogos_qt.h"

#include <signal.h>

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTranslator>
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
      si = boton(u"Sí"_s, QMessageBox::YesRole);
      no = boton(u"No"_s, QMessageBox::NoRole);
      break;
    case Botones::SiNoCancelar:
      si = boton(u"Sí"_s, QMessageBox::YesRole);
      no = boton(u"No"_s, QMessageBox::NoRole);
      cancelar = boton(u"Cancelar"_s, QMessageBox::RejectRole);
      break;
  }
  // A question may destroy something: Enter, or a stray touch on the default, answers "No".
  if (no) {
    caja.setDefaultButton(static_cast<QPushButton*>(no));
    caja.setEscapeButton(no);
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
  return botones == Botones::SiNo ? Respuesta::No : Respuesta::Cancelar;
}

namespace {

// Rows, buttons and fields of a standard dialog as large as a fingertip.
const QString kEstiloTactil =
    u"QAbstractItemView { font-size: 16px; }"
    "QAbstractItemView::item { min-height: 44px; }"
    "QPushButton, QToolButton, QComboBox, QLineEdit { min-height: 44px; font-size: 16px; }"
    "QPushButton { min-width: 120px; }"
    "QScrollBar:vertical { width: 44px; } QScrollBar:horizontal { height: 44px; }"_s;

constexpr int kColumnasColores = 8;
constexpr QSize kMuestra(64, 48);

}  // namespace

bool CargarTraduccionesQt(QCoreApplication& app, QTranslator& traductor) {
  if (!traductor.load(QLocale(QLocale::Spanish, QLocale::Spain), u"qtbase"_s, u"_"_s,
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    return false;
  }
  return app.installTranslator(&traductor);
}

QString DialogosQt::abrirArchivo(const QString& titulo, const QString& carpeta,
                                 const QString& filtro) {
  // Qt's own dialog rather than the desktop's: only it can be made touch-sized.
  QFileDialog dialogo(QApplication::activeWindow(), titulo, carpeta, filtro);
  dialogo.setOption(QFileDialog::DontUseNativeDialog);
  dialogo.setFileMode(QFileDialog::ExistingFile);
  dialogo.setStyleSheet(kEstiloTactil);
  dialogo.resize(900, 640);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
    return {};
  return dialogo.selectedFiles().first();
}

std::optional<QColor> DialogosQt::elegirColor(const QColor& inicial) {
  // The standard dialog's swatches are too small for a finger (about 22×18 pixels) and cannot
  // be enlarged: its 48 basic colours are offered here as large swatches, and "Otro color..."
  // opens the standard dialog for any other colour.
  QDialog dialogo(QApplication::activeWindow());
  dialogo.setWindowTitle(QColorDialog::tr("Select Color"));
  dialogo.setStyleSheet(kEstiloTactil);
  auto* rejilla = new QGridLayout(&dialogo);
  std::optional<QColor> elegido;
  for (int i = 0; i < 48; ++i) {
    const QColor color = QColorDialog::standardColor(i);
    auto* muestra = new QPushButton(&dialogo);
    muestra->setObjectName(u"color_"_s + QString::number(i));
    muestra->setFixedSize(kMuestra);
    muestra->setStyleSheet(
        u"QPushButton { background-color: %1; border: %2px solid #202020; "
        "min-width: 0; }"_s.arg(color.name())
            .arg(color == inicial ? 4 : 1));
    muestra->setAccessibleName(color.name());
    QObject::connect(muestra, &QPushButton::clicked, &dialogo, [&dialogo, &elegido, color] {
      elegido = color;
      dialogo.accept();
    });
    rejilla->addWidget(muestra, i / kColumnasColores, i % kColumnasColores);
  }
  auto* otro = new QPushButton(u"Otro color..."_s, &dialogo);
  otro->setObjectName(u"otro_color"_s);
  auto* cancelar = new QPushButton(u"Cancelar"_s, &dialogo);
  QObject::connect(otro, &QPushButton::clicked, &dialogo, [&dialogo, &elegido, inicial] {
    const QColor c = QColorDialog::getColor(inicial, &dialogo);
    if (c.isValid()) {
      elegido = c;
      dialogo.accept();
    }
  });
  QObject::connect(cancelar, &QPushButton::clicked, &dialogo, &QDialog::reject);
  const int filas = 48 / kColumnasColores;
  rejilla->addWidget(otro, filas, 0, 1, kColumnasColores / 2);
  rejilla->addWidget(cancelar, filas, kColumnasColores / 2, 1, kColumnasColores / 2);
  if (dialogo.exec() != QDialog::Accepted)
    return std::nullopt;
  return elegido;
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
