#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include "imagen_producto.h"
#include "imagen_prueba.h"
#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

class TestImagen : public QObject {
  Q_OBJECT
 private slots:
  void init() { origen_ = std::make_unique<QTemporaryDir>(); }
  void unaImagenDe75000BytesSeAceptaYDe75001No();
  void enElaboradosNoHayLimite();
  void unArchivoQueNoEsImagenSeRechaza();
  void laCopiaNuncaSobrescribe();
  void elDialogoSeAbreEnLaCarpetaDeFotos();
  void cancelarElDialogoNoCambiaNada();
  void elColorSeGuardaComoSuValor();

 private:
  std::unique_ptr<QTemporaryDir> origen_;
};

void TestImagen::unaImagenDe75000BytesSeAceptaYDe75001No() {
  InstalacionPrueba prueba;
  const QString justa = Imagen(origen_->path(), u"justa.png"_s, 75000, qRgb(255, 0, 0));
  const QString grande = Imagen(origen_->path(), u"grande.png"_s, 75001, qRgb(0, 255, 0));

  const std::optional<ImagenElegida> aceptada =
      AceptarImagen(prueba.entorno(), PantallaImagen::General, justa);
  QVERIFY(aceptada);
  QCOMPARE(aceptada->archivo, u"justa.png"_s);
  QCOMPARE(aceptada->imagen.pixelColor(0, 0), QColor(255, 0, 0));
  const QString fotos = QDir(prueba.carpeta()).filePath(u"fotos"_s);
  QCOMPARE(Contenido(QDir(fotos).filePath(u"justa.png"_s)), Contenido(justa));

  QCOMPARE(AceptarImagen(prueba.entorno(), PantallaImagen::General, grande), std::nullopt);
  QVERIFY(!QFile::exists(QDir(fotos).filePath(u"grande.png"_s)));
  const QList<DialogosGuion::Llamada> avisos = prueba.dialogos().llamadasDe(u"mensaje"_s);
  QCOMPARE(avisos.size(), 1);
  QCOMPARE(avisos.first().texto,
           u"El archivo seleccionado es demasiado grande, es necesario que seleccione una imagen "
           "mas pequeña para que el programa funcione de forma optima.\r\nNo use imagenes "
           "superiores a 75 kb de tamaño"_s);
  QCOMPARE(avisos.first().titulo, u"Imagen demasiado grande"_s);
  QCOMPARE(avisos.first().icono, ServicioDialogos::Icono::Informacion);
}

void TestImagen::enElaboradosNoHayLimite() {
  InstalacionPrueba prueba;
  const QString fotos = QDir(prueba.carpeta()).filePath(u"fotosBD"_s);
  // The suite writes the photo folder with '\'.
  prueba.entorno().sesion.rutaFotos = QString(fotos).replace(u'/', u'\\') + u'\\';
  const QString grande = Imagen(origen_->path(), u"grande.png"_s, 75001, qRgb(0, 0, 255));
  const std::optional<ImagenElegida> aceptada =
      AceptarImagen(prueba.entorno(), PantallaImagen::Elaborados, grande);
  QVERIFY(aceptada);
  QCOMPARE(aceptada->archivo, u"grande.png"_s);
  QCOMPARE(Contenido(QDir(fotos).filePath(u"grande.png"_s)), Contenido(grande));
  QVERIFY(!QFile::exists(QDir(prueba.carpeta()).filePath(u"fotos/grande.png"_s)));
  QVERIFY(prueba.dialogos().llamadas().isEmpty());
}

void TestImagen::unArchivoQueNoEsImagenSeRechaza() {
  InstalacionPrueba prueba;
  const QString ruta = QDir(origen_->path()).filePath(u"factura.jpg"_s);
  QFile f(ruta);
  QVERIFY(f.open(QIODevice::WriteOnly));
  f.write("esto no es una imagen");
  f.close();
  for (PantallaImagen pantalla : {PantallaImagen::General, PantallaImagen::Elaborados}) {
    QCOMPARE(AceptarImagen(prueba.entorno(), pantalla, ruta), std::nullopt);
  }
  QCOMPARE(AceptarImagen(prueba.entorno(), PantallaImagen::General, ruta + u"x"_s), std::nullopt);
  const QList<DialogosGuion::Llamada> avisos = prueba.dialogos().llamadasDe(u"mensaje"_s);
  QCOMPARE(avisos.size(), 3);
  for (const DialogosGuion::Llamada& aviso : avisos) {
    QCOMPARE(aviso.texto, u"La imágen indicada no tiene un formato válido"_s);
    QCOMPARE(aviso.icono, ServicioDialogos::Icono::Exclamacion);
    QCOMPARE(aviso.titulo, TituloPrograma());
  }
  QVERIFY(!QFile::exists(QDir(prueba.carpeta()).filePath(u"fotos/factura.jpg"_s)));
}

void TestImagen::laCopiaNuncaSobrescribe() {
  InstalacionPrueba prueba;
  // The folder is "Fotos" on this installation: the same folder, whatever its capitals.
  const QString fotos = QDir(prueba.carpeta()).filePath(u"Fotos"_s);
  const QString primera = Imagen(fotos, u"cana.png"_s, 2000, qRgb(255, 0, 0));
  const QByteArray original = Contenido(primera);
  const QString otra = Imagen(origen_->path(), u"cana.png"_s, 3000, qRgb(0, 255, 0));

  const std::optional<ImagenElegida> elegida =
      AceptarImagen(prueba.entorno(), PantallaImagen::General, otra);
  QVERIFY(elegida);
  QCOMPARE(elegida->archivo, u"cana.png"_s);
  QCOMPARE(Contenido(primera), original);
  // Choosing the file that is already there copies nothing either.
  QVERIFY(AceptarImagen(prueba.entorno(), PantallaImagen::General, primera));
  QCOMPARE(Contenido(primera), original);
  QCOMPARE(QDir(fotos).entryList(QDir::Files), QStringList{u"cana.png"_s});
  QVERIFY(!QFileInfo::exists(QDir(prueba.carpeta()).filePath(u"fotos"_s)));
  QVERIFY(prueba.log().isEmpty());
}

void TestImagen::elDialogoSeAbreEnLaCarpetaDeFotos() {
  InstalacionPrueba prueba;
  prueba.entorno().sesion.rutaFotos = u"/srv/tpv/fotos/"_s;
  const QString ruta = Imagen(origen_->path(), u"vino.png"_s, 500, qRgb(1, 2, 3));
  prueba.dialogos().siguienteArchivo(ruta);
  const std::optional<ImagenElegida> elegida =
      ElegirImagen(prueba.entorno(), PantallaImagen::General);
  QVERIFY(elegida);
  QCOMPARE(elegida->archivo, u"vino.png"_s);
  ElegirImagen(prueba.entorno(), PantallaImagen::Elaborados);
  const QList<DialogosGuion::Llamada> dialogos = prueba.dialogos().llamadasDe(u"abrirArchivo"_s);
  QCOMPARE(dialogos.size(), 2);
  QCOMPARE(dialogos.at(0).texto, QDir(prueba.carpeta()).filePath(u"fotos"_s) + u"|*.*"_s);
  QCOMPARE(dialogos.at(1).texto, u"/srv/tpv/fotos/|*.*"_s);
}

void TestImagen::cancelarElDialogoNoCambiaNada() {
  InstalacionPrueba prueba;
  QCOMPARE(ElegirImagen(prueba.entorno(), PantallaImagen::General), std::nullopt);
  QVERIFY(prueba.dialogos().llamadasDe(u"mensaje"_s).isEmpty());
  QVERIFY(!QFileInfo::exists(QDir(prueba.carpeta()).filePath(u"fotos"_s)));
}

void TestImagen::elColorSeGuardaComoSuValor() {
  DialogosGuion dialogos;
  dialogos.siguienteColor(QColor(0x12, 0x34, 0x56));
  // Red in the lowest byte.
  QCOMPARE(ElegirColor(dialogos, u"255"_s), std::optional<QString>(u"5649426"_s));
  QCOMPARE(dialogos.llamadas().first().texto, QColor(255, 0, 0).name());
  QCOMPARE(ElegirColor(dialogos, u""_s), std::nullopt);  // cancelled
  QCOMPARE(dialogos.llamadas().last().texto, QColor(Qt::white).name());
}

QTEST_MAIN(TestImagen)
#include "test_imagen.moc"
