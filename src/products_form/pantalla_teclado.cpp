#include "pantalla_teclado.h"

#include <QGroupBox>
#include <QPushButton>

#include "disenio.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kRetroceso = 8;
constexpr int kEnter = 13;
constexpr int kEspacio = 32;
constexpr int kAltoTecla = disenio::kAltoToque;
constexpr int kPaso = kAltoTecla + 4;

struct Tecla {
  int codigo;
  int columnas;  // how many key widths it takes
};

QPushButton* CrearTecla(TecladoPantalla& t, int codigo, const QString& caption, const QRect& g) {
  QPushButton* b = CrearBoton(t.fr_teclado, u"bt_letra_%1"_s.arg(codigo), caption, g);
  // The keys never take the focus: they type into the field that has it.
  b->setFocusPolicy(Qt::NoFocus);
  b->setProperty("indice", codigo);
  PonerLetra(b, disenio::kLetraTitulo, true);
  t.bt_letra.append(b);
  return b;
}

QString CaptionDe(int codigo) {
  switch (codigo) {
    case kRetroceso:
      return u"Borrar"_s;
    case kEnter:
      return u"Intro"_s;
    case kEspacio:
      return u"Espacio"_s;
    default:
      return QString(QChar(codigo));
  }
}

void CrearFilas(TecladoPantalla& t, const QList<QList<Tecla>>& filas, int x0, int ancho) {
  for (int f = 0; f < filas.size(); ++f) {
    int x = x0;
    for (const Tecla& tecla : filas.at(f)) {
      const int w = ancho * tecla.columnas + 3 * (tecla.columnas - 1);
      CrearTecla(t, tecla.codigo, CaptionDe(tecla.codigo), QRect(x, 4 + f * kPaso, w, kAltoTecla));
      x += w + 3;
    }
  }
}

QList<Tecla> Letras(const QString& letras) {
  QList<Tecla> r;
  for (QChar c : letras)
    r.append({c.unicode(), 1});
  return r;
}

}  // namespace

TecladoPantalla CrearTeclado(QWidget* formulario, const QString& separadorDecimal) {
  TecladoPantalla t;
  t.fr_teclado =
      CrearMarco(formulario, u"fr_teclado"_s, QString(),
                 QRect(0, disenio::kAlto - 3 * kPaso - 6, disenio::kAncho, 3 * kPaso + 6));
  QList<Tecla> ultima = Letras(u"ZXCVBNM"_s);
  ultima.append({kEspacio, 3});
  CrearFilas(t, {Letras(u"QWERTYUIOP"_s), Letras(u"ASDFGHJKL\u00D1"_s), ultima}, 8, 66);

  const int separador = separadorDecimal == u"."_s ? '.' : ',';
  CrearFilas(t,
             {{{'7', 1}, {'8', 1}, {'9', 1}, {kRetroceso, 2}},
              {{'4', 1}, {'5', 1}, {'6', 1}, {'0', 1}, {separador, 1}},
              {{'1', 1}, {'2', 1}, {'3', 1}, {kEnter, 2}}},
             712, 58);
  return t;
}
