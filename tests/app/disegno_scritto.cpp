#include "app/disegno_scritto.h"

#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <stdexcept>

namespace prova {

namespace {

using platform::Look;
using platform::Row;

const QString kNiente = QStringLiteral("-");
// The columns of a control that are always there, after its name.
const QStringList kColonne{QStringLiteral("left"),   QStringLiteral("top"),
                           QStringLiteral("width"),  QStringLiteral("height"),
                           QStringLiteral("font"),   QStringLiteral("ink"),
                           QStringLiteral("ground"), QStringLiteral("in")};
const QStringList kColonneForma{QStringLiteral("width"), QStringLiteral("height"),
                                QStringLiteral("ground")};
// What a control can be beside those; a word alone, or with "=" and its value.
const QStringList kParole{
    QStringLiteral("align"),    QStringLiteral("border"),   QStringLiteral("hidden"),
    QStringLiteral("disabled"), QStringLiteral("checked"),  QStringLiteral("mnemonic"),
    QStringLiteral("locked"),   QStringLiteral("max"),      QStringLiteral("line"),
    QStringLiteral("picture"),  QStringLiteral("shortcut"), QStringLiteral("keeps-shape")};
const QString kSi = QStringLiteral("yes");
const QString kTitolo = QStringLiteral("caption");

QString testo(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

QString numero(double n) {
  return QString::number(n, 'g', 10);
}

QString colore(const std::optional<platform::Rgb>& rgb) {
  if (!rgb) return kNiente;
  return QStringLiteral("%1,%2,%3").arg(rgb->red).arg(rgb->green).arg(rgb->blue);
}

QString carattere(const platform::FontSpec& font) {
  return (font.face == platform::Face::Arial ? QStringLiteral("Arial/")
                                             : QStringLiteral("Tahoma/")) +
         numero(font.size) + (font.bold ? QStringLiteral("/bold") : QString());
}

QString lato(platform::Align align) {
  return align == platform::Align::Centre  ? QStringLiteral("centre")
         : align == platform::Align::Right ? QStringLiteral("right")
                                           : QStringLiteral("left");
}

Voci voci(const Row& riga) {
  const Look& look = riga.look;
  const platform::TwipsRect& posto = riga.place;
  Voci v;
  const QStringList colonne{numero(posto.left),   numero(posto.top),
                            numero(posto.width),  numero(posto.height),
                            carattere(look.font), colore(look.fore),
                            colore(look.back),    look.in.empty() ? kNiente : testo(look.in)};
  for (qsizetype i = 0; i < colonne.size(); ++i) v.insert(kColonne[i], colonne[i]);
  const auto metti = [&v](const char* nome, bool vale, const QString& valore = kSi) {
    if (vale) v.insert(QString::fromLatin1(nome), valore);
  };
  metti("align", look.align != platform::Align::Left, lato(look.align));
  metti("border", look.border);
  metti("hidden", look.hidden);
  metti("disabled", look.disabled);
  metti("checked", look.checked);
  metti("mnemonic", look.mnemonic);
  metti("locked", look.locked);
  metti("max", look.maxLength != 0, QString::number(look.maxLength));
  metti("line", look.borderWidth != 1, QString::number(look.borderWidth));
  metti("picture", !look.picture.empty(), testo(look.picture));
  metti("shortcut", !look.shortcut.empty(), testo(look.shortcut));
  metti("caption", !look.caption.empty(), testo(look.caption));
  return v;
}

// One line: words apart by blanks, the caption in quotes at the end.
Voci leggi(const QString& riga, const QStringList& colonne) {
  static const QRegularExpression forma(QStringLiteral("^([^\"]*)(?:\"(.*)\")?$"));
  const QRegularExpressionMatch trovata = forma.match(riga);
  const QStringList parole = trovata.captured(1).split(u' ', Qt::SkipEmptyParts).mid(1);
  if (!trovata.hasMatch() || parole.size() < colonne.size()) {
    throw std::runtime_error("cannot be read: " + riga.toStdString());
  }
  Voci v;
  for (qsizetype i = 0; i < parole.size(); ++i) {
    if (i < colonne.size()) {
      v.insert(colonne[i], parole[i]);
      continue;
    }
    const QString nome = parole[i].section(u'=', 0, 0);
    if (!kParole.contains(nome)) {
      throw std::runtime_error("no such word: " + parole[i].toStdString());
    }
    v.insert(nome, parole[i].contains(u'=') ? parole[i].section(u'=', 1) : kSi);
  }
  if (!trovata.captured(2).isEmpty()) v.insert(kTitolo, trovata.captured(2));
  return v;
}

void confronta(const QString& chi, const Voci& vere, const Voci& attese, QStringList& diverse) {
  QStringList nomi = vere.keys() + attese.keys();
  nomi.removeDuplicates();
  for (const QString& nome : nomi) {
    const QString vera = vere.value(nome, kNiente);
    const QString attesa = attese.value(nome, kNiente);
    if (vera != attesa) {
      diverse
          << QStringLiteral("%1, %2: %3, not %4 as the table says").arg(chi, nome, vera, attesa);
    }
  }
}

}  // namespace

DisegnoScritto Scritto(const platform::FormDesign& disegno) {
  DisegnoScritto scritto;
  const QStringList colonne{numero(disegno.width), numero(disegno.height), colore(disegno.back)};
  for (qsizetype i = 0; i < colonne.size(); ++i) scritto.forma.insert(kColonneForma[i], colonne[i]);
  if (disegno.keepsShape) scritto.forma.insert(QStringLiteral("keeps-shape"), kSi);
  if (!disegno.caption.empty()) scritto.forma.insert(kTitolo, testo(disegno.caption));
  for (const std::span<const Row> tavola : disegno.tables) {
    for (const Row& riga : tavola) {
      QString nome = testo(riga.name);
      if (riga.index >= 0) nome += QStringLiteral("(%1)").arg(riga.index);
      if (!scritto.controlli.contains(nome)) scritto.ordine.push_back(nome);
      scritto.controlli.insert(nome, voci(riga));
    }
  }
  return scritto;
}

DisegnoScritto Letto(const QString& percorso) {
  QFile file(percorso);
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("there is no table " + percorso.toStdString());
  }
  DisegnoScritto scritto;
  for (const QString& riga : QString::fromUtf8(file.readAll()).split(u'\n')) {
    if (riga.isEmpty() || riga.startsWith(u'#')) continue;
    const QString nome = riga.section(u' ', 0, 0, QString::SectionSkipEmpty);
    if (nome == QStringLiteral("form")) {
      scritto.forma = leggi(riga, kColonneForma);
    } else if (scritto.controlli.contains(nome)) {
      throw std::runtime_error("named again: " + nome.toStdString());
    } else {
      scritto.ordine.push_back(nome);
      scritto.controlli.insert(nome, leggi(riga, kColonne));
    }
  }
  return scritto;
}

QStringList Differenze(const DisegnoScritto& vero, const DisegnoScritto& tabella) {
  QStringList diverse;
  confronta(QStringLiteral("the form"), vero.forma, tabella.forma, diverse);
  for (const QString& nome : vero.ordine) {
    if (tabella.controlli.contains(nome)) {
      confronta(nome, vero.controlli[nome], tabella.controlli[nome], diverse);
    } else {
      diverse << nome + QStringLiteral(": not in the table");
    }
  }
  for (const QString& nome : tabella.ordine) {
    if (!vero.controlli.contains(nome)) diverse << nome + QStringLiteral(": not in the design");
  }
  // The order is that of the Tab key.
  const auto [qui, la] = std::mismatch(vero.ordine.begin(), vero.ordine.end(),
                                       tabella.ordine.begin(), tabella.ordine.end());
  if (qui != vero.ordine.end() && la != tabella.ordine.end()) {
    diverse << QStringLiteral("%1, order: the table has %2 here").arg(*qui, *la);
  }
  return diverse;
}

}  // namespace prova
