#include <sqlite3.h>

#include <QtTest>

#include <QApplication>
#include <QComboBox>
#include <QSqlDriver>

#include "alta_prueba.h"

using namespace Qt::Literals::StringLiterals;
using namespace alta;

namespace {

int ContarFila(unsigned, void* cuenta, void*, void*) {
  ++*static_cast<qint64*>(cuenta);
  return 0;
}

// The rows that SQLite hands out while a manager accepts a new product, on a catalogue of n
// products with their stock rows and two supplier links each.
qint64 FilasLeidasAlAceptar(int n) {
  QStringList filas = {Proveedor(u"P1"_s, u"Distribuciones Sur"_s),
                       Proveedor(u"P2"_s, u"Bodegas Norte"_s)};
  for (int i = 1; i <= n; ++i) {
    const QString c = QString::number(i);
    filas << Producto(c, u"Producto "_s + c, {{u"descnumerica"_s, c}}) << Stock(c, u"1"_s, u"1"_s)
          << u"insert into productoproveedor values ('%1', 'P1', 0)"_s.arg(c)
          << u"insert into productoproveedor values ('%1', 'P2', 0)"_s.arg(c);
  }
  FormularioPrueba f(filas);
  if (!f.mostrar())
    return -1;
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  Escribir(f, u"txt_nombre"_s, u"Vermut"_s);
  Pulsar(f, u"cmd_Proveedor"_s);
  TocarLinea(f, u"lb_Proveedores"_s, u"Bodegas Norte"_s);
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QTest::keyClick(f.control<QComboBox>(u"cbo_Medida"_s), Qt::Key_Down);
  Pulsar(f, u"opt_Venta"_s);
  Escribir(f, u"txt_coste"_s, u"2"_s);
  Escribir(f, u"txt_iva"_s, u"10"_s);
  Escribir(f, u"txt_precio"_s, u"3"_s);
  Pulsar(f, u"optBarra"_s);
  f.dialogos().siguienteColor(QColor(255, 0, 0));
  Pulsar(f, u"cmd_aceptar"_s);  // the first accept asks for the colour

  const QVariant h = f.inst().conexion().bd().driver()->handle();
  sqlite3* db = *static_cast<sqlite3* const*>(h.constData());
  qint64 cuenta = 0;
  sqlite3_trace_v2(db, SQLITE_TRACE_ROW, ContarFila, &cuenta);
  Pulsar(f, u"cmd_aceptar"_s);
  sqlite3_trace_v2(db, 0, nullptr, nullptr);
  if (f.inst().filas(u"select codigo from productos where nombre = 'Vermut'"_s).size() != 1)
    return -1;
  return cuenta;
}

}  // namespace

class TestAltaEscala : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void aceptarSoloLeeElCatalogoDondeSusSentenciasLoPiden();
};

// The rows that an accept reads grow with the catalogue only through the two statements that
// must read it whole: the codes ordered for the next code, and the form's list read again. The
// tables the new rows go into are not read to add them.
void TestAltaEscala::aceptarSoloLeeElCatalogoDondeSusSentenciasLoPiden() {
  const qint64 pocos = FilasLeidasAlAceptar(10);
  const qint64 muchos = FilasLeidasAlAceptar(110);
  QVERIFY(pocos > 0);
  QVERIFY(muchos > 0);
  QCOMPARE(muchos - pocos, 2 * 100);
}

PRODUCTOS_TEST_MAIN(TestAltaEscala)
#include "test_alta_escala.moc"
