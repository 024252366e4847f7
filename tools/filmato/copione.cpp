#include "tools/filmato/copione.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace somme::filmato {

namespace {

// What a value is when it is not of the form that its key asks for.
using Letta = std::optional<Operazione>;

std::optional<int> intero(const QJsonValue& valore) {
  constexpr double kLimite = 1e9;
  const double numero = valore.toDouble(kLimite);
  if (!valore.isDouble() || numero != static_cast<int>(numero)) {
    return std::nullopt;
  }
  return static_cast<int>(numero);
}

// A value may be written as a text, a number or a truth.
std::optional<QString> testo(const QJsonValue& valore) {
  if (valore.isString()) {
    return valore.toString();
  }
  if (valore.isDouble()) {
    return QString::number(valore.toDouble(), 'g', 15);
  }
  if (valore.isBool()) {
    return valore.toBool() ? QStringLiteral("1") : QStringLiteral("0");
  }
  return std::nullopt;
}

Letta leggiAttesa(const QJsonValue& valore) {
  const auto scatti = intero(valore);
  return scatti && *scatti >= 0 ? Letta(Attesa{*scatti}) : std::nullopt;
}

Letta leggiVaiA(const QJsonValue& valore) {
  const auto fotogramma = intero(valore);
  return fotogramma ? Letta(VaiA{*fotogramma}) : std::nullopt;
}

Letta leggiAvvia(const QJsonValue& valore) {
  return valore.toBool() ? Letta(Avvia{}) : std::nullopt;
}

Letta leggiFerma(const QJsonValue& valore) {
  return valore.toBool() ? Letta(Ferma{}) : std::nullopt;
}

Letta leggiImposta(const QJsonValue& valore) {
  const QJsonObject campi = valore.toObject();
  const auto proprieta = intero(campi[QStringLiteral("prop")]);
  const auto nuovo = testo(campi[QStringLiteral("value")]);
  const QJsonValue bersaglio = campi[QStringLiteral("target")];
  if (!proprieta || !nuovo || !bersaglio.isString()) {
    return std::nullopt;
  }
  return Imposta{bersaglio.toString(), *proprieta, *nuovo};
}

Letta leggiLeggi(const QJsonValue& valore) {
  const QJsonObject campi = valore.toObject();
  const auto proprieta = intero(campi[QStringLiteral("prop")]);
  const QJsonValue bersaglio = campi[QStringLiteral("target")];
  if (!proprieta || !bersaglio.isString()) {
    return std::nullopt;
  }
  return Leggi{bersaglio.toString(), *proprieta};
}

template <Mouse::Gesto gesto>
Letta leggiMouse(const QJsonValue& valore) {
  const QJsonArray punto = valore.toArray();
  if (punto.size() != 2 || !punto[0].isDouble() || !punto[1].isDouble()) {
    return std::nullopt;
  }
  return Mouse{gesto, {punto[0].toDouble(), punto[1].toDouble()}};
}

Letta leggiScatto(const QJsonValue& valore) {
  return valore.isString() ? Letta(Scatto{valore.toString()}) : std::nullopt;
}

struct Riga {
  const char16_t* chiave;
  Letta (*leggi)(const QJsonValue& valore);
};

constexpr Riga kRighe[] = {
    {u"wait", leggiAttesa},
    {u"goto", leggiVaiA},
    {u"play", leggiAvvia},
    {u"stop", leggiFerma},
    {u"set", leggiImposta},
    {u"get", leggiLeggi},
    {u"move", leggiMouse<Mouse::Gesto::Sposta>},
    {u"down", leggiMouse<Mouse::Gesto::Premi>},
    {u"up", leggiMouse<Mouse::Gesto::Rilascia>},
    {u"click", leggiMouse<Mouse::Gesto::Clic>},
    {u"shot", leggiScatto},
};

std::optional<Passo> leggiPasso(const QJsonObject& campi, QString& errore) {
  Passo passo;
  passo.diFotogramma = campi[QStringLiteral("frame")].toBool();
  passo.diCursore = campi[QStringLiteral("cursor")].toBool();
  int operazioni = 0;
  for (const Riga& riga : kRighe) {
    const QString chiave = QString::fromUtf16(riga.chiave);
    if (!campi.contains(chiave)) {
      continue;
    }
    const Letta letta = riga.leggi(campi[chiave]);
    if (!letta) {
      errore = QStringLiteral("\"%1\" has a value of the wrong form").arg(chiave);
      return std::nullopt;
    }
    passo.operazione = *letta;
    ++operazioni;
  }
  if (operazioni > 1 || (operazioni == 0 && !passo.diFotogramma && !passo.diCursore)) {
    errore = QStringLiteral("a step needs one operation");
    return std::nullopt;
  }
  return passo;
}

}  // namespace

std::optional<Copione> leggiCopione(const QByteArray& json, QString& errore) {
  QJsonParseError inatteso;
  const QJsonDocument documento = QJsonDocument::fromJson(json, &inatteso);
  if (!documento.isArray()) {
    errore = documento.isNull() ? inatteso.errorString() : QStringLiteral("not a list of steps");
    return std::nullopt;
  }
  Copione copione;
  for (const auto& valore : documento.array()) {
    const auto passo = leggiPasso(valore.toObject(), errore);
    if (!passo) {
      errore = QStringLiteral("step %1: %2").arg(copione.size()).arg(errore);
      return std::nullopt;
    }
    copione.push_back(*passo);
  }
  return copione;
}

}  // namespace somme::filmato
