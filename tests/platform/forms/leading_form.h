#pragma once

#include <functional>
#include <initializer_list>
#include <utility>

#include "stage.h"

// A form that leads to another, and what its log is compared with.
namespace trial {

inline QStringList words(std::initializer_list<const char*> list) {
  QStringList result;
  for (const char* word : list) result.append(QString::fromUtf8(word));
  return result;
}

// Form "One", whose first button leads to form "Two"; form "Two" does in its Load what is given.
inline TrialForm& leading(Stage& stage, std::function<void(TrialForm& two)> inLoad) {
  stage.prepare["Two"] = [inLoad = std::move(inLoad)](TrialForm& two) {
    two.loading = [&two, inLoad] { inLoad(two); };
    two.First.onClick([&two] { two.write(QStringLiteral("Two.First")); });
  };
  TrialForm& one = stage.show(kOne);
  one.First.onClick([&] { stage.runtime->forms().pass(one, kTwo.name); });
  one.Second.onClick([&one] { one.write(QStringLiteral("One.Second")); });
  one.MenuAct.onClick([&one] { one.write(QStringLiteral("One.MenuAct")); });
  one.MenuKeyed.onClick([&one] { one.write(QStringLiteral("One.MenuKeyed")); });
  stage.log.clear();
  return one;
}

}  // namespace trial
