#include <QTemporaryDir>
#include <QtTest>

#include "codigos_producto.h"
#include "formulario_prueba.h"
#include "imagen_producto.h"
#include "impresoras_producto.h"
#include "listas_productos.h"
#include "proveedores_producto.h"
#include "reglas_teclas.h"
#include "validacion_producto.h"

using namespace Qt::Literals::StringLiterals;

// The products form's rules that need no widget: keys, amounts, checks, codes, lists, suppliers,
// printers, pictures and the save, on a throwaway installation.
namespace {

// The text of a field after typing keys one by one through the decimal rule.
QString Teclear(const QString& inicio, const QString& teclas, int decimales, const QString& sep) {
  QString texto = inicio;
  for (QChar c : teclas) {
    const int r = TeclaDecimal(c.unicode(), texto, decimales, sep);
    if (r == teclas::kRetroceso)
      texto.chop(1);
    else if (r != 0)
      texto += QChar(r);
  }
  return texto;
}

// A product row with the columns the look-ups read: code, name, deleted, hidden from the till,
// family, numeric description, position, barcode.
QString Fila(const QString& valores) {
  return u"insert into productos (codigo, nombre, borrar, mostrarencaja, seccion, DescNumerica, "
         "orden, codigobarras) values ("_s +
         valores + u")"_s;
}

QStringList Contextos(InstalacionPrueba& prueba) {
  QStringList r;
  for (const auto& [contexto, descripcion] : prueba.erroresMostrados())
    r.append(contexto);
  return r;
}

}  // namespace

class TestLogica : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void reglaDecimal_data();
  void reglaDecimal();
  void esNumerico_data();
  void esNumerico();
  void lasComprobacionesVanEnSuOrden_data();
  void lasComprobacionesVanEnSuOrden();
  void codigosYNumerosPropuestos();
  void loQueChocaConOtroProducto();
  void unFalloDeLaBaseSeRegistraConSuContexto();
  void proveedoresDeUnProducto();
  void imagenes();
  void grabarSinCamposOpcionales_data();
  void grabarSinCamposOpcionales();
  void unaGrabacionQueFallaNoDejaNada();
};

void TestLogica::reglaDecimal_data() {
  QTest::addColumn<QString>("separador");
  QTest::addColumn<int>("decimales");
  QTest::addColumn<QString>("inicio");
  QTest::addColumn<QString>("teclas");
  QTest::addColumn<QString>("texto");
  QTest::newRow("punto da coma") << u","_s << 2 << u""_s << u"1.5"_s << u"1,5"_s;
  QTest::newRow("coma da punto") << u"."_s << 2 << u""_s << u"1,5"_s << u"1.5"_s;
  QTest::newRow("dos decimales y no más") << u","_s << 2 << u""_s << u"3,2567"_s << u"3,25"_s;
  QTest::newRow("completo: ni una cifra") << u"."_s << 2 << u"3.25"_s << u"9"_s << u"3.25"_s;
  QTest::newRow("sin decimales no hay separador") << u","_s << 0 << u""_s << u"1,5.2"_s << u"152"_s;
  QTest::newRow("no empieza por el separador") << u","_s << 2 << u""_s << u",5"_s << u"5"_s;
  QTest::newRow("un solo separador") << u"."_s << 2 << u""_s << u"1..5"_s << u"1.5"_s;
  QTest::newRow("ni signos ni letras") << u","_s << 2 << u""_s << u"-1 a+2"_s << u"12"_s;
  QTest::newRow("retroceso") << u","_s << 2 << u"3,25"_s << u"\b\b"_s << u"3,"_s;
}

void TestLogica::reglaDecimal() {
  QFETCH(QString, separador);
  QFETCH(int, decimales);
  QFETCH(QString, inicio);
  QFETCH(QString, teclas);
  QFETCH(QString, texto);
  QCOMPARE(Teclear(inicio, teclas, decimales, separador), texto);
  // Enter is never typed as a character; the stock fields take digits, Enter and Backspace.
  QCOMPARE(TeclaDecimal(teclas::kEnter, u"3"_s, decimales, separador), 0);
  for (int tecla : {int('0'), int('9'), teclas::kEnter, teclas::kRetroceso})
    QCOMPARE(TeclaSoloDigitos(tecla), tecla);
  for (int tecla : {int(','), int('.'), int('a'), int('-'), teclas::kEscape, 22})
    QCOMPARE(TeclaSoloDigitos(tecla), 0);
}

void TestLogica::esNumerico_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<QString>("decimal");
  QTest::addColumn<bool>("numerico");
  QTest::addColumn<double>("valor");
  QTest::newRow("coma en España") << u"12,5"_s << u","_s << true << 12.5;
  QTest::newRow("vacío") << u""_s << u","_s << false << 0.0;
  QTest::newRow("blancos alrededor") << u" 3 "_s << u","_s << true << 3.0;
  QTest::newRow("exponente") << u"1e3"_s << u","_s << true << 1000.0;
  QTest::newRow("exponente D") << u"2D2"_s << u","_s << true << 200.0;
  QTest::newRow("signo") << u"-4,25"_s << u","_s << true << -4.25;
  QTest::newRow("punto en España son miles") << u"12.5"_s << u","_s << true << 125.0;
  QTest::newRow("miles tras la coma") << u"1,5.0"_s << u","_s << false << 0.0;
  QTest::newRow("miles al principio") << u".5"_s << u","_s << false << 0.0;
  QTest::newRow("dos comas") << u"1,2,3"_s << u","_s << false << 0.0;
  QTest::newRow("coma de miles con punto") << u"1,234.5"_s << u"."_s << true << 1234.5;
  QTest::newRow("hexadecimal") << u"&H1F"_s << u","_s << true << 31.0;
  QTest::newRow("cifras y letras") << u"12abc"_s << u","_s << false << 0.0;
  QTest::newRow("desbordado") << u"1e999"_s << u","_s << false << 0.0;
  QTest::newRow("cifras árabes") << u"\u0663"_s << u","_s << false << 0.0;
}

void TestLogica::esNumerico() {
  QFETCH(QString, texto);
  QFETCH(QString, decimal);
  QFETCH(bool, numerico);
  QFETCH(double, valor);
  const QString miles = decimal == u","_s ? u"."_s : u","_s;
  QCOMPARE(EsNumerico(texto, decimal, miles), numerico);
  const std::optional<double> leido = ValorNumerico(texto, decimal, miles);
  QCOMPARE(leido.has_value(), numerico);
  if (numerico)
    QCOMPARE(*leido, valor);
}

void TestLogica::lasComprobacionesVanEnSuOrden_data() {
  QTest::addColumn<int>("numero");
  QTest::addColumn<QString>("mensaje");
  QTest::addColumn<QString>("campo");
  // Each row breaks its own field and every later one: the first broken check must win.
  QTest::newRow("1") << 1 << u"El nombre no puede estar vacio."_s << u"txt_nombre"_s;
  QTest::newRow("2") << 2 << u"El coste no puede estar vacio"_s << u"txt_coste"_s;
  QTest::newRow("3") << 3 << u"Ingrese el coste del producto"_s << u"txt_coste"_s;
  QTest::newRow("4") << 4 << u"Ingrese un valor del impuesto"_s << u"txt_iva"_s;
  QTest::newRow("5") << 5 << u"Ingrese un valor de impuesto valido"_s << u"txt_iva"_s;
  QTest::newRow("6") << 6 << u"Ingrese el stock minimo que puede ser 1"_s << u"txt_stock_minimo"_s;
  QTest::newRow("6 no numérico") << 60 << u"Ingrese el stock minimo que puede ser 1."_s
                                 << u"txt_stock_minimo"_s;
  QTest::newRow("7") << 7 << u"Ingrese el precio"_s << u"txt_precio"_s;
  QTest::newRow("8") << 8 << u"Seleccione la unidad de medida"_s << u"cbo_Medida"_s;
  QTest::newRow("9") << 9 << u"Seleccione el proveedor"_s << u"cmd_Proveedor"_s;
  QTest::newRow("10") << 10 << u"Seleccione el lugar de servir o preparar el producto."_s
                      << u"optCocina"_s;
  QTest::newRow("11") << 11 << u"El codigo de barras ya existe."_s << u"txtCodBarras"_s;
  QTest::newRow("ninguna") << 12 << QString() << QString();
}

void TestLogica::lasComprobacionesVanEnSuOrden() {
  QFETCH(int, numero);
  QFETCH(QString, mensaje);
  QFETCH(QString, campo);
  const int desde = numero == 60 ? 6 : numero;
  CamposObligatorios c;
  c.nombre = u"Caña"_s;
  c.coste = u"0,6"_s;
  c.iva = u"10"_s;
  c.stockMinimo = u"1"_s;
  c.precio = u"1,76"_s;
  c.unidadMedida = u"Unidades"_s;
  c.proveedoresAsignados = 1;
  c.optBarra = true;
  c.codigoBarras = u"8410000000017"_s;
  QStringList consultados;
  c.existeCodBarras = [&](const QString& codigo) {
    consultados.append(codigo);
    return desde <= 11;
  };
  // Applied from the last down to this one, so that a field shared by two checks ends broken
  // for the earlier one.
  const QList<std::function<void()>> romper = {
      [&] { c.nombre.clear(); },
      [&] { c.coste.clear(); },
      [&] { c.coste = u"caro"_s; },
      [&] { c.iva.clear(); },
      [&] { c.iva = u"x"_s; },
      [&] { c.stockMinimo = numero == 60 ? u"uno"_s : u""_s; },
      [&] { c.precio = u"gratis"_s; },
      [&] { c.unidadMedida.clear(); },
      [&] { c.proveedoresAsignados = 0; },
      [&] { c.optBarra = false; },
  };
  for (int i = 10; i >= desde; --i)
    romper.at(i - 1)();
  DialogosGuion dialogos;
  QCOMPARE(bComprobarCamposObligatorios(dialogos, c), desde == 12);
  // The barcode is looked up with its text, and only when the earlier checks pass.
  QCOMPARE(consultados, desde >= 11 ? QStringList{c.codigoBarras} : QStringList());
  const std::optional<FalloValidacion> fallo = ComprobarCamposObligatorios(c);
  QCOMPARE(fallo.has_value(), desde != 12);
  if (!fallo) {
    QVERIFY(dialogos.llamadas().isEmpty());
    return;
  }
  QCOMPARE(fallo->numero, desde);
  QCOMPARE(fallo->mensaje, mensaje);
  QCOMPARE(fallo->campo, campo);
  QCOMPARE(dialogos.mensajes(),
           (QStringList{mensaje, u"Debe establecer valor para todos los campos requeridos"_s}));
  QCOMPARE(dialogos.llamadas().at(0).icono, ServicioDialogos::Icono::Critico);
  QCOMPARE(dialogos.llamadas().at(0).titulo, TituloPrograma());
  QCOMPARE(dialogos.llamadas().at(1).icono, ServicioDialogos::Icono::Informacion);
}

void TestLogica::codigosYNumerosPropuestos() {
  InstalacionPrueba prueba;
  Entorno& e = prueba.entorno();
  QCOMPARE(SiguienteCodigo(e), std::optional<qint64>(1));
  QCOMPARE(ValorPonerOrden(e), std::optional<QString>(u"0"_s));
  QCOMPARE(ValorMensajeNumero(e, 1), std::optional<QString>(u"1"_s));
  prueba.ejecutar(
      {Fila(u"'9', 'A', 0, 0, '1', 7, 4, ''"_s), Fila(u"'10', 'B', 0, 0, '1', 3, 11, ''"_s),
       // Deleted and hidden products do not count for the proposals.
       Fila(u"'2', 'C', -1, 0, '1', 90, 90, ''"_s), Fila(u"'4', 'D', 0, -1, '1', 50, 6, ''"_s)});
  // By number, not as text ("9" > "10"), deleted products included.
  QCOMPARE(SiguienteCodigo(e), std::optional<qint64>(11));
  prueba.ejecutar({Fila(u"'25', 'E', -1, 0, '1', 4, 4, ''"_s)});
  QCOMPARE(SiguienteCodigo(e), std::optional<qint64>(26));
  QCOMPARE(ValorPonerOrden(e), std::optional<QString>(u"12"_s));
  QCOMPARE(ValorMensajeNumero(e, 2), std::optional<QString>(u"8"_s));
  QVERIFY(prueba.log().isEmpty());
}

void TestLogica::loQueChocaConOtroProducto() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Fila(u"'1', 'Coca Cola', 0, 0, '3', 12, 1, ''"_s),
                   Fila(u"'2', 'Fanta', -1, 0, '3', 22, 2, '8410001'"_s),
                   Fila(u"'3', 'Oculto', 0, -1, '3', 20, 3, ''"_s),
                   Fila(u"'4', 'Sin familia', 0, 0, '-1', 21, 4, ''"_s)});
  Entorno& e = prueba.entorno();
  // A name clashes with another live product, whatever its capitals, never with itself.
  QVERIFY(bcomprobarSiExisteNombre(e, u"coca cola"_s, 5));
  QVERIFY(!bcomprobarSiExisteNombre(e, u"Coca Cola"_s, 1));
  // A numeric description, with a live product shown on the till in a family, and only once
  // modified; 0 or less is a missing one.
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"12"_s, 2, false).existe);
  QVERIFY(bcomprobarSiExisteDescNumerica(e, u"12"_s, 2, true).existe);
  for (const QString& libre : {u"12"_s, u"20"_s, u"22"_s}) {
    QVERIFY2(!bcomprobarSiExisteDescNumerica(e, libre, libre == u"12"_s ? 1 : 9, true).existe,
             qPrintable(libre));
  }
  for (const QString& vacio : {u"0"_s, u"-4"_s}) {
    const ComprobacionDescNumerica r = bcomprobarSiExisteDescNumerica(e, vacio, 2, true);
    QCOMPARE(r.aviso, u"Es necesario que ingrese una descripción numérica."_s);
  }
  // A product's own barcode and an empty one clash with none.
  QVERIFY(!existeCodBarras(e, u"8410001"_s, 2));
  QVERIFY(!existeCodBarras(e, u""_s, 3));
}

void TestLogica::unFalloDeLaBaseSeRegistraConSuContexto() {
  InstalacionPrueba prueba;
  Entorno& e = prueba.entorno();
  // An apostrophe breaks the statement, as it always has: logged, not a clash.
  QVERIFY(!bcomprobarSiExisteNombre(e, u"D'Artagnan"_s, 1));
  QVERIFY(!existeCodBarras(e, u"12'3"_s, 1));
  prueba.ejecutar({u"drop table productos"_s, u"drop table impresoras"_s});
  QCOMPARE(SiguienteCodigo(e), std::nullopt);
  QCOMPARE(ValorPonerOrden(e), std::nullopt);
  QCOMPARE(ValorMensajeNumero(e, 1), std::nullopt);
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"4"_s, 1, true).existe);
  QCOMPARE(LeerListaProductos(e), std::nullopt);
  QCOMPARE(LeerListaProductosPorTipo(e, u"barra"_s), std::nullopt);
  const ImpresorasDisponibles impresoras = CargarImpresorasDisponibles(e);
  QVERIFY(impresoras.cantidad == 0 && !impresoras.mostrarBotones);
  QCOMPARE(Contextos(prueba),
           (QStringList{u"Productos  4"_s, u"Productos  6"_s, u"Productos  1"_s, u"Productos  2"_s,
                        u"Productos  3"_s, u"Productos  5"_s, u"ListaProductos  1"_s,
                        u"ListaProductos  2"_s, u"Impresoras  1"_s}));
  // Logged without the notice of an empty list.
  QVERIFY(prueba.dialogos().llamadas().isEmpty());
}

void TestLogica::proveedoresDeUnProducto() {
  InstalacionPrueba prueba;
  prueba.ejecutar(
      {Proveedor(u"1"_s, u"Mahou"_s), Proveedor(u"2"_s, u"Pescanova"_s),
       u"insert into productos (codigo, nombre, proveedor) values ('8', 'Merluza', '1')"_s,
       u"insert into productoproveedor values ('8', '2', 4.5)"_s,
       u"insert into productoproveedor values ('80', '2', 4.5)"_s});
  // A main supplier with no link of its own is listed as assigned and as free.
  const ListasProveedores listas = CargarListasProveedores(prueba.entorno(), 8);
  QCOMPARE(listas.asignados, (QStringList{LineaProveedor(u"Mahou"_s, u"1"_s),
                                          LineaProveedor(u"Pescanova"_s, u"2"_s)}));
  QCOMPARE(listas.libres, QStringList{LineaProveedor(u"Mahou"_s, u"1"_s)});
  // The table refuses the second supplier half-way through the save: the old links stay.
  prueba.ejecutar({u"alter table productoproveedor rename to viejos"_s,
                   u"create table productoproveedor (producto text, proveedor text check "
                   "(proveedor <> '3'), coste double)"_s,
                   u"insert into productoproveedor select * from viejos"_s});
  QVERIFY(!GuardarProveedores(prueba.entorno(), 80,
                              {LineaProveedor(u"A"_s, u"1"_s), LineaProveedor(u"B"_s, u"3"_s)}));
  QCOMPARE(prueba.filas(kEnlaces),
           (QList<QVariantList>{{u"8"_s, u"2"_s, 4.5}, {u"80"_s, u"2"_s, 4.5}}));
  QCOMPARE(Contextos(prueba), QStringList{u"Proveedores  3"_s});
}

void TestLogica::imagenes() {
  InstalacionPrueba prueba;
  QTemporaryDir origen;
  Entorno& e = prueba.entorno();
  // Not a picture, whatever its name says; nor a missing file.
  const QString factura = QDir(origen.path()).filePath(u"factura.jpg"_s);
  QFile texto(factura);
  QVERIFY(texto.open(QIODevice::WriteOnly) && texto.write("no es una imagen") > 0);
  texto.close();
  QCOMPARE(AceptarImagen(e, PantallaImagen::Elaborados, factura), std::nullopt);
  QCOMPARE(AceptarImagen(e, PantallaImagen::General, factura + u"x"_s), std::nullopt);
  QCOMPARE(prueba.dialogos().mensajes(),
           QStringList(2, u"La imágen indicada no tiene un formato válido"_s));
  QCOMPARE(prueba.dialogos().llamadas().first().icono, ServicioDialogos::Icono::Exclamacion);
  QCOMPARE(prueba.dialogos().llamadas().first().titulo, TituloPrograma());

  // The folder is "Fotos" here: the same folder, whatever its capitals; a copy never overwrites.
  const QString fotos = QDir(prueba.carpeta()).filePath(u"Fotos"_s);
  const QString primera = Imagen(fotos, u"cana.png"_s, 2000, Qt::red);
  const QByteArray original = Contenido(primera);
  const std::optional<ImagenElegida> otra = AceptarImagen(
      e, PantallaImagen::General, Imagen(origen.path(), u"cana.png"_s, 3000, Qt::green));
  QVERIFY(otra && otra->archivo == u"cana.png"_s);
  QCOMPARE(Contenido(primera), original);
  QCOMPARE(QDir(fotos).entryList(QDir::Files), QStringList{u"cana.png"_s});
  QVERIFY(!QFileInfo::exists(QDir(prueba.carpeta()).filePath(u"fotos"_s)));

  // The elaborated products' pictures go to the database's photo folder, written with '\'.
  const QString fotosBD = QDir(prueba.carpeta()).filePath(u"fotosBD"_s);
  e.sesion.rutaFotos = QString(fotosBD).replace(u'/', u'\\') + u'\\';
  const QString grande = Imagen(origen.path(), u"grande.png"_s, 75001, Qt::blue);
  QVERIFY(AceptarImagen(e, PantallaImagen::Elaborados, grande));
  QCOMPARE(Contenido(QDir(fotosBD).filePath(u"grande.png"_s)), Contenido(grande));

  QVERIFY(prueba.log().isEmpty());
}

void TestLogica::grabarSinCamposOpcionales_data() {
  // The special product is stored for a restaurant or a bar only, the program type spelt as the
  // suite spells it.
  QTest::addColumn<QString>("tipo");
  QTest::addColumn<QVariant>("especial");
  QTest::newRow("restaurante") << u"RESTAURANTE"_s << QVariant(-1);
  QTest::newRow("copas") << u"COPAS"_s << QVariant(-1);
  QTest::newRow("comida rápida") << u"FASTFOOD"_s << QVariant();
  QTest::newRow("otras mayúsculas") << u"Restaurante"_s << QVariant();
}

void TestLogica::grabarSinCamposOpcionales() {
  QFETCH(QString, tipo);
  QFETCH(QVariant, especial);
  InstalacionPrueba prueba;
  prueba.entorno().sesion.tipo_programa = tipo;
  ProductoFormulario p = Cana();
  p.familia.clear();
  p.foto.clear();
  p.color.clear();
  p.codigoBarras.clear();
  p.descripcion.clear();
  p.optBarra = false;
  p.chkProdEspecial = true;  // an entry product: no place is written
  p.optAmbos = false;
  p.optCocinaBarra = true;
  p.mostrarEnCaja = false;
  p.margen.clear();
  p.precio.clear();
  p.stockActual.clear();
  p.impresora = u"0"_s;
  p.descNumerica = u"   "_s;
  p.posicion = u"0"_s;
  p.consumiciones = 6.5;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::optional<qint64>(1));
  CompararFila(prueba.filas(kColumnasProducto).value(0), u"1"_s, u"Caña"_s, u""_s, u""_s, u"-1"_s,
               0.6, 0.0, 0.0, 10.0, Hoy(), QVariant(), QVariant(), u"P01"_s, u"Unidades"_s, 5.0, -1,
               QVariant(), 0, 1, 0, 0, especial, 0);
  QCOMPARE(prueba.filas(kColumnasStock), (QList<QVariantList>{{1, 0.0, 5.0, 6.5}}));
}

void TestLogica::unaGrabacionQueFallaNoDejaNada() {
  InstalacionPrueba prueba;
  ProductoFormulario p = Cana();
  p.codigo = 44;
  QVERIFY(!modificarProducto(prueba.entorno(), p));
  // A margin that is no number is not among the required checks: it stops the save.
  p.margen = u"uno"_s;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::nullopt);
  QVERIFY((prueba.filas(kColumnasProducto) + prueba.filas(kColumnasStock) + prueba.filas(kEnlaces))
              .isEmpty());
  QCOMPARE(prueba.log(),
           QByteArray("Productos  8, Descripcion: No existe el producto 44\r\n"
                      "Productos  7, Descripcion: El valor \xABuno\xBB no es v\xE1lido para el "
                      "campo MargenComercial\r\n"));
}

QTEST_MAIN(TestLogica)
#include "test_logica.moc"
