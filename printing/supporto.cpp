#include "printing/supporto.h"

#include <QBuffer>
#include <QDataStream>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPicture>
#include <deque>
#include <utility>

#include "app/shared/ambiente.h"

namespace somme::inline stampa {

namespace {

// One PDF document.
class SupportoPdf final : public Supporto {
 public:
  SupportoPdf(const platform::PrinterSettings& impostazioni, bool diritto, const QString& titolo) {
    const platform::Paper& carta = impostazioni.paper;
    const bool traverso = impostazioni.orientation == platform::Orientation::Landscape && !diritto;
    const QPageSize foglio(QSizeF(carta.width, carta.height), QPageSize::Millimeter, carta.media,
                           QPageSize::ExactMatch);
    // Size and direction in one: each by itself would be corrected by the other.
    scrittore_.setPageLayout(QPageLayout(
        foglio, traverso ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
    scrittore_.setResolution(platform::kDrawingDotsPerInch);
    scrittore_.setTitle(titolo);
    scrittore_.setCreator(TitoloProgramma());
  }

  [[nodiscard]] bool Inizia(QPainter& pittore) override {
    return memoria_.open(QIODevice::WriteOnly) && pittore.begin(&scrittore_);
  }
  [[nodiscard]] bool NuovaPagina(QPainter& /*pittore*/) override { return scrittore_.newPage(); }
  [[nodiscard]] QByteArray Chiudi() override {
    memoria_.close();
    return std::move(dati_);
  }

 private:
  QByteArray dati_;
  QBuffer memoria_{&dati_};
  QPdfWriter scrittore_{&memoria_};
};

// What was drawn on each page, for a printer that draws it once more.
class SupportoDisegno final : public Supporto {
 public:
  [[nodiscard]] bool Inizia(QPainter& pittore) override {
    return pittore.begin(&pagine_.emplace_back());
  }
  [[nodiscard]] bool NuovaPagina(QPainter& pittore) override {
    const QTransform trasformazione = pittore.worldTransform();
    const QPainter::RenderHints modi = pittore.renderHints();
    if (!pittore.end() || !pittore.begin(&pagine_.emplace_back())) return false;
    pittore.setWorldTransform(trasformazione);
    pittore.setRenderHints(modi);
    return true;
  }
  [[nodiscard]] QByteArray Chiudi() override {
    QByteArray dati;
    QDataStream scritto(&dati, QIODevice::WriteOnly);
    scritto << qint32(pagine_.size());
    for (const QPicture& pagina : pagine_) scritto << pagina;
    return dati;
  }

 private:
  std::deque<QPicture> pagine_;  // a page stays where it is while the next is drawn
};

}  // namespace

std::unique_ptr<Supporto> FaiSupporto(platform::PageFormat formato,
                                      const platform::PrinterSettings& impostazioni, bool diritto,
                                      const QString& titolo) {
  if (formato == platform::PageFormat::Drawing) return std::make_unique<SupportoDisegno>();
  return std::make_unique<SupportoPdf>(impostazioni, diritto, titolo);
}

}  // namespace somme::inline stampa
