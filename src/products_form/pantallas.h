#pragma once

#include <QList>
#include <QString>

class PanelObjNuevo;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QPushButton;
class QRadioButton;
class QWidget;

// The controls of the products form, screen by screen, under their control names. The screens
// are built by their own files (pantalla_*.cpp, marcos_auxiliares.cpp, pantalla_teclado.cpp);
// the features of the form reach the controls through these structures.

// The start screen, from which the manager picks simple or elaborated products.
struct PantallaInicial {
  QGroupBox* fr_Inicial = nullptr;
  QLabel* lbl_Titulo = nullptr;
  QPushButton* cmd_ProdGenerico = nullptr;
  QLabel* Label12 = nullptr;
  QPushButton* cmd_ProdElaborado = nullptr;
  QLabel* lbl_ModificarTicket = nullptr;
  QPushButton* Boton_SM1 = nullptr;
  QLabel* Label2 = nullptr;
  QPushButton* cmd_Salir2 = nullptr;
};

// The screen of simple products (kind 1).
struct PantallaGenerico {
  QGroupBox* fr_ProductoGenerico = nullptr;

  QLabel* lbl_nombre = nullptr;
  QLineEdit* txt_nombre = nullptr;
  QLabel* lbl_CodBarras = nullptr;
  QLineEdit* txtCodBarras = nullptr;
  QLabel* lbl_descripcion = nullptr;
  QLineEdit* txt_descripcion = nullptr;
  QLabel* lbl_Proveedor = nullptr;
  QPushButton* cmd_Proveedor = nullptr;

  QLabel* lbl_Medida = nullptr;
  QComboBox* cbo_Medida = nullptr;
  QLabel* lbl_MedidaAyuda = nullptr;
  QLabel* Label6 = nullptr;
  QRadioButton* opt_Venta = nullptr;
  QRadioButton* opt_cocina = nullptr;
  QRadioButton* opt_ambos = nullptr;

  QLabel* lbl_coste = nullptr;
  QLineEdit* txt_coste = nullptr;
  QLabel* lbl_iva = nullptr;
  QLineEdit* txt_iva = nullptr;
  QLabel* lbl_percent = nullptr;
  QLabel* lbl_margen = nullptr;
  QLineEdit* txt_margen = nullptr;
  QLabel* lbl_precio = nullptr;
  QLineEdit* txt_precio = nullptr;
  QLabel* lbl_stock_minimo = nullptr;
  QLineEdit* txt_stock_minimo = nullptr;
  QLabel* Label16 = nullptr;  // the current stock's caption
  QLineEdit* txt_stock_actual = nullptr;

  QLabel* lblPreparado = nullptr;
  QRadioButton* optCocina = nullptr;
  QRadioButton* optBarra = nullptr;
  QPushButton* cmdImpresoras = nullptr;
  QGroupBox* frMostrarCaja = nullptr;
  QCheckBox* ch_Mostrar = nullptr;
  QCheckBox* chkProdEspecial = nullptr;
  QPushButton* Command1 = nullptr;  // sub-products
  QGroupBox* frlogo1 = nullptr;

  // The till's button: family, picture, colour, numeric description and position.
  QLabel* lbl_Familia = nullptr;
  QLabel* lblnomFamilia = nullptr;
  PanelObjNuevo* PanelFamilias = nullptr;
  QLabel* pict_imagen = nullptr;
  QLabel* lbl_Insertar = nullptr;
  QLabel* pic_ColorPG = nullptr;
  QLabel* lbl_color = nullptr;
  QLabel* Label14 = nullptr;  // the numeric description's caption
  QLineEdit* txtDescNumericaPGen = nullptr;
  QLabel* Lbl_Posicion = nullptr;
  QPushButton* bt_botonAnt = nullptr;
  QLabel* lblPos = nullptr;
  QPushButton* bt_botonSig = nullptr;

  QPushButton* cmd_nuevo = nullptr;
  QPushButton* cmd_modificar = nullptr;
  QPushButton* cmd_eliminar = nullptr;
  QPushButton* cmd_aceptar = nullptr;
  QPushButton* cmd_cancelar = nullptr;
  QPushButton* cmd_buscar = nullptr;
  QPushButton* cmd_ListaProd = nullptr;
  QPushButton* cmd_ayuda = nullptr;
  QPushButton* cmd_salir = nullptr;

  QGroupBox* frFlechasGen = nullptr;
  QList<QPushButton*> bt_botones;  // first, previous, next, last

  // The cover over the fields that a new product has not reached yet.
  QGroupBox* frOcultarGen = nullptr;
  QGroupBox* fr_MensajeNombre = nullptr;
  QLabel* lblMensNombre = nullptr;
  QGroupBox* fr_Mensajenumero = nullptr;
  QLabel* lblMensajeNumero = nullptr;
};

// The screen of elaborated products (kind 2).
struct PantallaElaborados {
  QGroupBox* fr_ProductosElaborados = nullptr;

  QGroupBox* fr_DatosProdElab = nullptr;
  QLabel* lbl_NombreElaborado = nullptr;
  QLineEdit* txt_NombreElaborado = nullptr;
  QLabel* lbl_ProductoElaborado = nullptr;  // the title of a new elaborated product
  QLabel* lbl_DescElaborado = nullptr;
  QLineEdit* txt_DescElaborado = nullptr;
  QLabel* lbl_costeElaborado = nullptr;
  QLineEdit* txt_costeElaborado = nullptr;
  QLabel* lbl_ImpuestoElaborado = nullptr;
  QLineEdit* txt_ImpuestoElaborado = nullptr;
  QLabel* lbl_percentElab = nullptr;
  QLabel* lbl_PrecioElaborado = nullptr;
  QLineEdit* txt_PrecioElaborado = nullptr;
  QLabel* lblPreparadoElab = nullptr;
  QRadioButton* optCocinaElab = nullptr;
  QRadioButton* optBarraElab = nullptr;
  QPushButton* cmdImpresorasElab = nullptr;

  QLabel* lblProdASel = nullptr;
  QLabel* lbl_Elaborados = nullptr;
  QListView* lb_ProductosElaborados = nullptr;  // over a ModeloLineas, as lb_Productos
  QLabel* lbl_Candidatos = nullptr;
  QListView* lb_Productos = nullptr;
  QPushButton* bt_flecha = nullptr;
  QLabel* lbl_Componentes = nullptr;
  QListWidget* lb_ProductosSel = nullptr;
  QPushButton* cmdCVenta = nullptr;
  QPushButton* cmdCInterno = nullptr;
  QGroupBox* frOcultar = nullptr;

  QLabel* lbl_FamiliaElab = nullptr;
  QLabel* lblNomFamilia_elab = nullptr;
  PanelObjNuevo* PanelFamilias_Elab = nullptr;
  QLabel* pic_ProductoElaborado = nullptr;
  QLabel* lbl_InsertarElab = nullptr;
  QLabel* pic_Color = nullptr;
  QLabel* lbl_colorElab = nullptr;
  QLabel* lbl_DescNumElab = nullptr;
  QLineEdit* txtDescNumerica = nullptr;
  QLabel* lbl_PosElab = nullptr;
  QPushButton* bt_antpelab = nullptr;
  QLabel* lblpospelab = nullptr;
  QPushButton* bt_sigpelab = nullptr;
  QPushButton* Command4 = nullptr;  // sub-products

  QPushButton* cmd_NuevoProdEla = nullptr;
  QPushButton* cmd_ModificarProdEla = nullptr;
  QPushButton* cmd_EliminarProdEla = nullptr;
  QPushButton* cmd_AceptarProdEl = nullptr;
  QPushButton* cmd_CancelarProdEl = nullptr;
  QPushButton* Boton_SM2 = nullptr;
  QPushButton* cmd_AyudaProdEla = nullptr;
  QPushButton* cmd_SalirProdEla = nullptr;

  QGroupBox* fr_mensajeNombrePElab = nullptr;
  QLabel* lblMensNombrePElab = nullptr;
  QGroupBox* fr_mensajeNumeroPElab = nullptr;
  QLabel* lblDescNumPElab = nullptr;
};

// The panels that open over a screen: hints, the colour frame and the choosers. They lie under
// the screens until a feature shows them with MostrarMarco.
struct MarcosAuxiliares {
  QGroupBox* fr_Mensaje = nullptr;
  QLabel* lblMensaje = nullptr;
  QGroupBox* fr_colores = nullptr;
  QLabel* lbl_colores = nullptr;

  QGroupBox* frProveedores = nullptr;
  QLabel* lblProducto = nullptr;
  QLabel* lbl_Disponibles = nullptr;
  QListWidget* lb_Proveedores = nullptr;
  QLabel* lbl_Asignados = nullptr;
  QListWidget* lb_ProveedoresAsignados = nullptr;
  QPushButton* cmd_AceptarProveedor = nullptr;
  QPushButton* cmd_CancelarProveedor = nullptr;

  QGroupBox* frImpresoras = nullptr;
  QListWidget* lb_impresoras = nullptr;
  QListWidget* lbCodigos = nullptr;  // hidden: the codes of lb_impresoras, line by line
  QPushButton* Command3 = nullptr;   // accept the chosen printer
  QPushButton* Command5 = nullptr;   // no specific printer
  QPushButton* cmdCerrarImpresoras = nullptr;

  QGroupBox* frListaProductos = nullptr;
  QListView* lstProductos = nullptr;  // over a ModeloLineas
  QPushButton* cmdCocina = nullptr;
  QPushButton* cmdBarra = nullptr;

  QGroupBox* fr_Cantidad = nullptr;
  QLabel* lbl_Cantidad = nullptr;  // the question about the component's quantity
  QLineEdit* txt_Cantidad = nullptr;
  QPushButton* cmd_QuitarComponente = nullptr;  // does what Escape does in txt_Cantidad

  // The printer line of the product on show, below both screens.
  QLabel* lblNomProd = nullptr;
};

// The on-screen keyboard: one button per key, named "bt_letra_<code>", whose property "indice"
// is the character code that it types (8 Backspace, 13 Enter).
struct TecladoPantalla {
  QGroupBox* fr_teclado = nullptr;
  QList<QPushButton*> bt_letra;
};

// Shows a panel of MarcosAuxiliares in front of the screen.
void MostrarMarco(QWidget* marco);

// Every control of the form, screen by screen.
struct ControlesFormulario {
  PantallaInicial inicial;
  PantallaGenerico gen;
  PantallaElaborados elab;
  MarcosAuxiliares marcos;
  TecladoPantalla teclado;
};
