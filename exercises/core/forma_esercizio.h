#pragma once

#include <functional>

#include "app/shared/comune.h"
#include "exercises/core/modo_input.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/caption_size.h"
#include "platform/forms/controls/image.h"
#include "platform/forms/controls/label.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/controls/picture_box.h"
#include "platform/forms/controls/rich_text_box.h"

namespace somme::inline nucleo {

// The cycle that all exercise forms share: the two counters and their labels, the verdict in
// picture and sound, the record of solved cases with its print panel, the numbers in a question,
// the way out. What is asked, how the answer comes and how it is judged is the business of the
// families.
class FormaEsercizio : public platform::Form, public Comune {
 public:
  FormaEsercizio(Ambiente& ambiente, const platform::FormDesign& disegno);

  // Tells assistive technology what the pupil has written so far without typing it.
  void DiciScritto(const QString& scritto);

  platform::Label EtichettaEsatti{*this};
  platform::Label EtichettaErrati{*this};
  platform::Image ImgSi{*this};
  platform::Image ImgNo{*this};
  platform::PictureBox PictureStampa{*this};
  platform::RichTextBox TestoStampa{*this};
  platform::Button CommandStampa{*this};
  platform::Button CommandChiudi{*this};
  platform::MenuItem MenuAzzera{*this};
  platform::MenuItem mnuStampa{*this};
  platform::MenuItem mnuEsci{*this};

 protected:
  // Takes up another way of input than mouse and keyboard; the form holds it. Called at most once,
  // in the form's constructor.
  void Usa(ModoInput& modo) { modo_ = &modo; }

  // Makes and shows the next case.
  virtual void NuovoCaso() = 0;
  // What an activation does once the way of input is ready.
  virtual void IniziaAttivazione() {}

  // Language, layout, icon, in this order, and between them the steps of the way of input. A form
  // that has more to do at its Load calls this, too.
  void onLoad() override;
  void onResize() final { EssResizer1.resize(); }
  void onActivate() final;

  void ScriviEsatti();
  void ScriviErrati();

  using Passo = std::function<void()>;
  // A right answer: picture, count, sound, whatever a form does before its label, the label.
  void SegnaGiusto(const Passo& primaDellEtichetta = {});
  // A step on the way to the answer is right: picture and sound, and nothing is counted.
  void SegnaPassoGiusto();
  // A wrong answer: count and label, picture, whatever a form does before the sound, the sound.
  void SegnaSbagliato(const Passo& primaDelSuono = {});

  // The record of solved cases: it begins with a heading between line breaks and gets a line for
  // each case, which is also told. Both are given without their line breaks.
  void IniziaElenco(const QString& intestazione);
  void AggiungiRiga(const QString& riga);

  // Tells assistive technology what a case asks; each begins with it.
  void DiciDomanda(const QString& domanda) { announce(domanda.simplified()); }

  // A number as a question shows it.
  [[nodiscard]] QString NumeroInDomanda(qint16 numero) const;
  // The case as an operation up to the sign before its result, and with it.
  [[nodiscard]] QString SommaDaFare() const;
  [[nodiscard]] QString SommaFatta() const;

  // Both counters to 0; the case stays as it is.
  void AzzeraConteggio();
  // Back to the menu that the form was opened from.
  void Esci();
  virtual void ApriPannelloStampa();
  virtual void ChiudiPannelloStampa();
  // The record on paper; the panel stays open.
  void StampaElenco();

 private:
  [[nodiscard]] QString ConteggioEsatti() const;
  [[nodiscard]] QString ConteggioErrati() const;
  // Shows one of the two pictures, in a way that is seen also where it was there before.
  void Mostra(platform::Image& verdetto, platform::Pop come);
  // Tells assistive technology what the pictures show, with its count.
  void DiciVerdetto(const platform::Image& verdetto, const QString& conteggio);

  platform::CaptionSize conteggi_{platform::CaptionSize::Kind::Pair};
  ModoInput* modo_ = nullptr;  // none: mouse and keyboard alone
};

}  // namespace somme::inline nucleo
