"""The rules of tools/controlla, each tried on a small house that breaks it and on one that does not."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../../tools"))

from controlli import mappa, misure, pulizia, sorgenti, stile, struttura, testo  # noqa: E402

_CASA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../..")
_LUNGO = "".join(f"  total{i} = call_{i % 7}(left, {i}) {'+-*/%&|'[i % 7]} right;\n"
                 for i in range(12))


class Casa(unittest.TestCase):
    """A repository in a folder of its own, made of the files that a test names."""

    def setUp(self):
        cartella = tempfile.TemporaryDirectory()
        self.addCleanup(cartella.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(cartella.name)
        self.git("init", "-q")

    def git(self, *parole):
        subprocess.run(["git", "-c", "user.name=A", "-c", "user.email=a@b", *parole], check=True,
                       capture_output=True)

    def file(self, **contenuti):
        for nome, contenuto in contenuti.items():
            percorso = nome.replace("__", "/").replace("_h", ".h").replace("_cpp", ".cpp")
            os.makedirs(os.path.dirname(percorso) or ".", exist_ok=True)
            with open(percorso, "w", encoding="utf-8") as file:
                file.write(contenuto)
        for letto in (sorgenti.tutti, sorgenti.testo, sorgenti.codice):
            letto.cache_clear()

    def test_an_include_of_a_lower_floor_is_allowed_and_of_a_higher_one_is_not(self):
        self.file(app__a_h='#include "cases/c.h"\n', cases__c_h="")
        self.assertEqual([], list(struttura.inclusioni_in_su()))
        self.file(cases__c_h='#include "app/a.h"\n', app__a_h="")
        self.assertEqual(1, len(list(struttura.inclusioni_in_su())))

    def test_two_families_do_not_know_one_another(self):
        self.file(exercises__bars__a_h='#include "exercises/blocks/b.h"\n',
                  exercises__blocks__b_h="")
        self.assertEqual(1, len(list(struttura.inclusioni_in_su())))

    def test_the_program_includes_nothing_of_its_tests(self):
        self.file(app__a_h='#include "tests/t.h"\n', tests__t_h="")
        self.assertEqual(1, len(list(struttura.inclusioni_in_su())))

    def test_page_and_picture_show_each_room_on_its_floor(self):
        riga = "| {} | {} | what lives there |\n"
        casa = (("0", "`platform/base`"), ("1", "`platform/forms`, `flash`"), ("1", "`cases/`"),
                ("6", "`exercises/bars`, `table`"), ("7", "`app/`"))
        scritta = '<text x="1" y="2" font-size="{}" fill="#222">{}</text>\n'
        figura = (("18", "7"), ("17", "app"), ("14", "the menus"), ("18", "6"), ("17", "bars"), ("17", "table"),
                  ("18", "1"), ("17", "platform/forms"), ("17", "platform/flash"), ("17", "cases"),
                  ("18", "0"), ("17", "platform/base"))
        self.file(app__a_h="", cases__a_h="", exercises__bars__a_h="", exercises__table__a_h="",
                  platform__base__a_h="", platform__flash__a_h="", platform__forms__keys__a_h="",
                  **{"docs/house.md": "".join(riga.format(*r) for r in casa),
                     "docs/house.svg": "".join(scritta.format(*s) for s in figura)})
        self.assertEqual([], list(mappa.stanze_fuori_posto()))
        self.file(platform__boards__b_h="", exercises__bars__a_h="",
                  **{"docs/house.md": "".join(riga.format(*r) for r in casa).replace("| 7 | `app/`", "| 5 | `app/`"),
                     "docs/house.svg": "".join(scritta.format(*s) for s in figura[:-1])})
        self.assertEqual(["docs/house.md: platform/boards is not shown on floor 2",
                          "docs/house.md: app is not shown on floor 7", "docs/house.md: app is shown on floor 5",
                          "docs/house.svg: platform/base is not shown on floor 0",
                          "docs/house.svg: platform/boards is not shown on floor 2"],
                         list(mappa.stanze_fuori_posto()))

    def test_a_ring_of_headers_is_found(self):
        self.file(cases__a_h='#include "cases/b.h"\n', cases__b_h='#include "cases/c.h"\n',
                  cases__c_h='#include "cases/a.h"\n', cases__d_h='#include "cases/a.h"\n')
        trovati = list(struttura.cicli_di_intestazioni())
        self.assertEqual(["headers that include one another: cases/a.h, cases/b.h, cases/c.h"],
                         trovati)

    def test_a_knot_through_sources_is_found_from_four_files_on(self):
        def giro(quanti):
            lettere = "abcd"[:quanti]
            self.file(**{f"cases__{x}_h": "" for x in lettere},
                      **{f"cases__{x}_cpp": f'#include "cases/{y}.h"\n'
                         for x, y in zip(lettere, lettere[1:] + lettere[0])})
        giro(3)
        self.assertEqual([], list(struttura.nodi_troppo_grandi()))
        giro(4)
        self.assertEqual(1, len(list(struttura.nodi_troppo_grandi())))

    def test_one_name_of_two_classes_is_found_whatever_the_way_of_writing_the_namespace(self):
        self.file(cases__a_h="namespace x::y {\nstruct A final : B<int> {\n};\n}\n",
                  cases__b_h="namespace x {\nnamespace y {\n\nclass [[nodiscard]] A {};\n}\n}\n")
        self.assertEqual(["x::y::A is defined more than once: cases/a.h:2, cases/b.h:4"],
                         list(struttura.nomi_doppi()))

    def test_what_a_room_defines_in_another_namespace_is_found(self):
        self.file(cases__a_h="namespace somme::inline casi {\nclass A {};\n}\n",
                  games__b_h="namespace somme::inline casi {\nclass A;\nstruct B;\n}\n\n"
                             "namespace somme::inline giochi {\nclass G {};\n}\n",
                  games__c_h="namespace somme::inline casi {\nclass C {};\n}\n",
                  games__d_h="namespace somme {\nvoid d();\n}\n",
                  games__e_h="namespace somme::inline giochi::forme {\nclass E {};\n}\n",
                  tests__f_cpp="namespace prova {\nclass F {};\n}\n")
        self.assertEqual(
            list(struttura.spazi_altrui()),
            ["games/c.h:1: namespace somme::inline casi, where the room has somme::inline giochi",
             "games/d.h:1: namespace somme, where the room has somme::inline giochi"])

    def test_a_family_has_a_namespace_of_its_own_whichever_folders_there_are(self):
        nuova = "namespace somme::inline conto {\nclass C {};\n}\n"
        self.file(exercises__counting__a_h=nuova, exercises__counting__b_cpp=nuova,
                  exercises__counting__c_h="namespace somme::inline nucleo {\nclass N {};\n}\n")
        self.assertEqual(list(struttura.spazi_altrui()),
                         ["exercises/counting/c.h:1: namespace somme::inline nucleo, "
                          "where the room has somme::inline conto"])
        self.file(exercises__counting__c_h="", exercises__other__a_h=nuova,
                  exercises__plain__a_h="namespace somme {\nclass P {};\n}\n",
                  exercises__third__a_h="namespace somme::inline nucleo {\nclass N {};\n}\n")
        self.assertEqual(list(struttura.spazi_altrui()),
                         ["exercises/other: no namespace of its own, but somme::inline conto",
                          "exercises/plain: no namespace of its own, but somme",
                          "exercises/third: no namespace of its own, but somme::inline nucleo"])

    def test_a_family_lies_above_what_all_share_and_below_the_program(self):
        self.file(exercises__counting__a_h='#include "exercises/core/c.h"\n#include "games/g.h"\n',
                  exercises__core__c_h="", games__g_h="",
                  app__a_h='#include "exercises/counting/a.h"\n')
        self.assertEqual([], list(struttura.inclusioni_in_su()))
        self.file(exercises__core__c_h='#include "exercises/counting/a.h"\n')
        self.assertEqual(1, len(list(struttura.inclusioni_in_su())))

    def test_a_constant_begins_with_k_and_a_function_need_not(self):
        self.file(cases__a_cpp="// constexpr int commento = 1;\n"
                               "constexpr int kUno = 1;\nconstexpr std::array<int, 2> due{1, 2};\n"
                               "constexpr int tre() {\n  constexpr int quattro = 4;\n  return quattro;\n}\n"
                               "constexpr bool operator==(const A&, const A&) = default;\n"
                               "template <auto A>\ninline constexpr int cinque = A;\n"
                               "static constexpr auto kSei = [] { return 6; }();\n")
        self.assertEqual(["cases/a.cpp:3: due", "cases/a.cpp:5: quattro"], list(testo.costanti()))

    def test_a_color_by_its_numbers_stands_in_a_table_of_colors(self):
        self.file(app__a_cpp="constexpr Rgb kRosso{255, 0, 0};\n// QColor(1, 2, 3)\nauto a = QColor(r, g, b);\n",
                  app__shared__colori_h="inline constexpr Rgb kRosso{255, 0, 0};\n",
                  platform__forms__b_cpp='QColor c(Qt::black);\nfill(QColor(0, 0, 0, 70));\nauto d = qRgb(1, 2, 3);\n'
                                         'QColor e("#ff0000");\n',
                  platform__flash__c_cpp="auto a = qRgb(0, 0, 0);\n", tests__d_cpp="QColor(1, 2, 3);\n")
        self.assertEqual(["app/a.cpp:1", "platform/forms/b.cpp:2", "platform/forms/b.cpp:3",
                          "platform/forms/b.cpp:4"],
                         [":".join(t.split(":")[:2]) for t in testo.colori()])

    def test_a_comment_begins_with_two_strokes(self):
        self.file(cases__a_h="/// A\nint a;  ///< b\n// see ///\nauto c = \"/// d\";\nint e;  // f\n")
        self.assertEqual(["cases/a.h:1", "cases/a.h:2"],
                         [":".join(t.split(":")[:2]) for t in stile.tre_sbarre()])

    def test_a_body_on_a_line_of_its_own_stands_in_braces(self):
        bene = ("void f() {\n  if (a) return;\n  if constexpr (b(1)) {\n    c();\n  } else if (d) {\n  } else {\n  }\n"
                "  do {\n  } while (a &&\n           b);\n  for (;;) {\n  }\n  while (next()) continue;\n"
                "  if (a) call(\n      b);\n#if defined(X)\n  g();\n#else\n  h();\n#endif\n}\n")
        self.file(cases__a_cpp=bene,
                  cases__b_cpp="void f() {\n  if (a(1) &&\n      b)  // c\n    return;\n  else\n    d();\n"
                               "  for (;;)\n    while (a)\n      g();\n  for (;;) if (a)\n      g();\n}\n")
        self.assertEqual([f"cases/b.cpp:{riga}" for riga in (4, 6, 8, 9, 11)],
                         [":".join(t.split(":")[:2]) for t in stile.corpi_senza_graffe()])

    def test_names_have_one_spelling(self):
        self.file(cases__a_cpp="// The colour of a grey.\nint aColor = gray(\"grey\");\n",
                  cases__b_cpp="int aColour;\nint b = inGrey(c, kGREY);\n")
        self.assertEqual(["cases/b.cpp:1: aColour", "cases/b.cpp:2: inGrey", "cases/b.cpp:2: kGREY"],
                         [":".join(t.split(":")[:3]) for t in stile.nomi_britannici()])

    def test_the_load_of_a_form_has_that_of_its_base_in_it(self):
        self.file(app__a_h="class FormaA : public platform::Form {\n};\nclass FormaB final : public FormaA {\n};\n"
                           "class FormaC final : public FormaA {\n};\n",
                  app__a_cpp="void FormaA::onLoad() {\n  a();\n}\n\nvoid FormaB::onLoad() {\n  b();\n  if (c) {\n"
                             "  }\n  FormaA::onLoad();\n}\n\nvoid FormaC::onLoad() {\n  // FormaA::onLoad();\n}\n")
        self.assertEqual(["app/a.cpp:12: the Load of FormaC leaves out that of its base"],
                         list(stile.caricamenti_senza_la_base()))

    def test_tests_of_one_folder_stand_in_one_program_and_those_of_two_do_not(self):
        self.file(tests__cases__a_cpp="struct A {};\n", tests__cases__b_cpp="struct A {};\n",
                  tests__input__a_cpp="struct A {};\n")
        self.assertEqual(["A is defined more than once: tests/cases/a.cpp:1, tests/cases/b.cpp:1"],
                         list(struttura.nomi_doppi()))
        self.file(tests__cases__b_cpp="struct B {};\nstruct C {};\n", tests__support__c_h="struct B {};\n",
                  cases__c_h="struct C {};\n")
        self.assertEqual(["B is defined more than once: tests/cases/b.cpp:1, tests/support/c.h:1",
                          "C is defined more than once: tests/cases/b.cpp:2, cases/c.h:1"],
                         list(struttura.nomi_doppi()))

    def test_inline_helpers_of_one_name_in_one_program_are_found(self):
        self.file(tests__cases__a_h="namespace x {\ninline int f(int a, const B& b = {}) {\n}\n}\n",
                  tests__cases__b_h="namespace x {\n\ninline C& f(int c, const B& d) {\n}\n}\n")
        self.assertEqual(["x::f(int, const B&) is defined more than once: tests/cases/a.h:2, "
                          "tests/cases/b.h:3"], list(struttura.nomi_doppi()))
        self.file(tests__cases__a_h="inline constexpr int k = 1;\n",
                  tests__cases__b_h="inline constexpr auto k{2};\n")
        self.assertEqual(["k is defined more than once: tests/cases/a.h:1, tests/cases/b.h:1"],
                         list(struttura.nomi_doppi()))

    def test_inline_helpers_of_other_arguments_or_namespaces_are_no_pair(self):
        self.file(tests__cases__a_h="namespace x {\ninline namespace p {\ninline int f(int a) {\n}\n}\n}\n",
                  tests__cases__b_h="namespace x {\ninline int f(int a) {\n}\ninline int f(char a) {\n}\n}\n")
        self.assertEqual([], list(struttura.nomi_doppi()))

    def test_types_that_nobody_else_sees_are_no_pair(self):
        self.file(cases__a_h="namespace x {\nnamespace {\nstruct A {};\n}\nvoid f() {\nstruct B {};\n}"
                             "\nstruct C;\nstruct K { struct D {}; };\n}\n// struct E {};\n",
                  cases__b_h='namespace x {\nstruct A {};\nstruct B {};\nclass C {};\nstruct D {};\n'
                             'const char* s = "struct E {";\nstruct E {};\n}\n')
        self.assertEqual([], list(struttura.nomi_doppi()))

    def test_a_copy_with_other_names_and_numbers_is_found(self):
        copia = _LUNGO.replace("total", "sum").replace("left", "a").replace("right", "b")
        self.file(cases__a_cpp="void f() {\n" + _LUNGO + "}\n",
                  input__b_cpp="int y;\nvoid g() {\n" + copia + "}\n")
        self.assertEqual(["cases/a.cpp:1 and input/b.cpp:2: more than 10 lines alike"],
                         list(testo.copie()))

    def test_a_copy_is_found_beside_the_program_too(self):
        self.file(tests__a_cpp="void f() {\n" + _LUNGO + "}\n", bench__b_cpp=_LUNGO, tools__c_cpp="int c;\n")
        self.assertEqual(["bench/b.cpp:1 and tests/a.cpp:2: more than 10 lines alike"], list(testo.copie()))

    def test_what_opens_a_class_of_tests_is_no_copy_nor_are_rows_of_numbers(self):
        inizio = "".join(f"using {n};\n" for n in ("a::b", "namespace c", "d::e", "f = g::h<int>")) + \
            "namespace {\n}\nclass T : public QObject {\n  Q_OBJECT\n\n private Q_SLOTS:\n  void t() {\n"
        numeri = "".join(f"    {'{' * (i % 3)}{i}, 1{'}' * (i % 3)}{',;'[i % 2]}\n" for i in range(12))
        self.file(tests__a_cpp=inizio + numeri + "  }\n};\n", tests__b_cpp=inizio + numeri + "  }\n};\n")
        self.assertEqual([], list(testo.copie()))

    def test_ten_lines_alike_are_allowed(self):
        corto = "".join(_LUNGO.splitlines(True)[:9])
        self.file(cases__a_cpp="void f() {\n" + corto + "}\nint a;\n",
                  input__b_cpp="char* y;\nvoid g() {\n" + corto + "}\nchar* c;\n")
        self.assertEqual([], list(testo.copie()))

    def test_rows_of_designs_are_data(self):
        righe = "constexpr auto kRighe = std::to_array<Row>({\n" + _LUNGO.replace(";", ",") + "});\n"
        self.file(cases__a_h=righe, input__b_h=righe)
        self.assertEqual([], list(testo.copie()))

    def test_a_file_of_more_than_400_lines_is_long_also_among_the_tests(self):
        self.file(tests__a_cpp="\n" * 400, tests__b_cpp="\n" * 401)
        self.assertEqual(["tests/b.cpp: 401 lines, 400 at most"], list(testo.file_lunghi()))

    def test_a_file_of_more_than_350_lines_is_long_in_a_room(self):
        self.file(cases__a_cpp="\n" * 350, cases__b_cpp="\n" * 351)
        self.assertEqual(["cases/b.cpp: 351 lines, 350 at most"], list(testo.file_lunghi()))

    def test_a_title_of_73_letters_is_long(self):
        self.file(a="")
        self.git("add", ".")
        self.git("commit", "-q", "-m", "l" * 80)
        prima = subprocess.run(["git", "rev-parse", "HEAD"], capture_output=True, text=True,
                               check=True).stdout.strip()
        self.git("commit", "-q", "--allow-empty", "-m", "l" * 72)
        self.assertEqual([], list(testo.titoli(prima)))
        self.git("commit", "-q", "--allow-empty", "-m", "l" * 73)
        self.assertEqual(1, len(list(testo.titoli(prima))))

    def test_what_is_left_open_and_paths_of_a_machine_are_found(self):
        self.file(a="// TO" "DO\n", b="see /ho" "me/anna/x\n", c="methods, ~/home/x, /homes\n")
        self.assertEqual(["a:1: TO" "DO", "b:1: /ho" "me/a"], list(testo.parole()))

    def test_a_file_that_is_laid_out_otherwise_is_found(self):
        self.file(cases__a_cpp="int  a ;\n", cases__b_cpp="int b;\n")
        trovati = list(testo.formato())
        self.assertEqual(1, len(trovati), trovati)
        self.assertIn("cases/a.cpp", trovati[0])

    def pulisci(self, *file):
        shutil.copy(os.path.join(_CASA, ".clang-tidy"), ".")
        return list(pulizia.guasti(file))

    def test_clang_tidy_tells_the_place_and_the_check_of_what_it_finds(self):
        self.file(cases__a_cpp="int ok() { return 1; }\n",
                  cases__b_cpp="double half(int a) { return a; }\n\ndouble third(int a) { return a / 3; }\n")
        self.assertEqual([], self.pulisci("cases/a.cpp"))
        trovati = self.pulisci("cases/a.cpp", "cases/b.cpp")
        self.assertEqual(1, len(trovati), trovati)
        self.assertRegex(trovati[0], r"^cases/b\.cpp:3: .*bugprone-integer-division")

    def test_clang_tidy_reads_headers_that_no_source_includes_and_templates_where_they_are_used(self):
        self.file(cases__a_h="inline double half(int a) { return a / 2; }\n",
                  cases__b_h="template <class T>\nT half(int a) { return a / 2; }\n",
                  app__c_cpp='#include "cases/b.h"\n\ndouble c() { return half<double>(3); }\n')
        trovati = self.pulisci("app/c.cpp", "cases/a.h", "cases/b.h")
        self.assertEqual(["cases/a.h:1", "cases/b.h:2"],
                         [":".join(t.split(":")[:2]) for t in trovati])

    def test_what_is_included_but_not_asked_for_is_not_told(self):
        self.file(cases__a_h="inline double half(int a) { return a / 2; }\n",
                  cases__b_cpp='#include "cases/a.h"\n')
        self.assertEqual([], self.pulisci("cases/b.cpp"))

    def test_files_with_names_in_common_are_read_apart_and_others_together(self):
        uno = "namespace {\nconstexpr int kUno = 1;\n}\nint A::f() {\n  return kUno;\n}\n"
        self.file(cases__a_cpp=uno, cases__b_cpp=uno.replace("A::", "B::"),
                  cases__c_cpp="int C::f() {\n  return 3;\n}\n", cases__d_h="", app__e_cpp=uno, app__f_h="")
        self.assertEqual([["cases/d.h", "cases/a.cpp", "cases/c.cpp", "app/f.h", "app/e.cpp"], ["cases/b.cpp"]],
                         pulizia.gruppi(["app/e.cpp", "app/f.h", "cases/a.cpp", "cases/b.cpp", "cases/c.cpp",
                                         "cases/d.h"]))

    def test_what_is_read_together_is_read_from_the_ground_up(self):
        self.file(platform__base__a_cpp="int f() {\n  return 1;\n}\n\ndouble half(int a) { return a / 2; }\n",
                  app__b_h="#define f broken(\n",
                  app__c_cpp='#include "app/b.h"\n\ndouble third(int a) { return a / 3; }\n')
        nomi = ["app/b.h", "app/c.cpp", "platform/base/a.cpp"]
        self.assertEqual([[nomi[2], *nomi[:2]]], pulizia.gruppi(nomi))
        self.assertEqual(["app/c.cpp:3", "platform/base/a.cpp:5"],
                         [":".join(t.split(":")[:2]) for t in self.pulisci(*nomi)])

    def test_many_files_are_read_in_groups_of_one_size(self):
        nomi = [f"cases/a{i}.cpp" for i in range(100)]
        self.file(**{nome.replace("/", "__").replace(".", "_"): "" for nome in nomi})
        self.assertEqual([34, 34, 32], [len(gruppo) for gruppo in pulizia.gruppi(nomi)])

    def test_programs_are_read_together_each_with_a_main_of_its_own(self):
        fuori = "int main(int, char**) {\n  throw 1;\n}\n"
        self.file(bench__a_cpp=fuori, tools__b_cpp=fuori.replace("int, char**", ""), tools__c_h="")
        nomi = ["bench/a.cpp", "tools/b.cpp", "tools/c.h"]
        self.assertEqual([["tools/c.h", *nomi[:2]]], pulizia.gruppi(nomi))
        trovati = self.pulisci(*nomi)
        self.assertEqual({"bench/a.cpp", "tools/b.cpp"}, {t.split(":")[0] for t in trovati})
        self.assertRegex("".join(trovati), "exception-escape")

    def test_tests_whose_folders_have_names_in_common_are_read_apart(self):
        self.file(tests__a__aiuto_h="inline int aiuto() {\n  return 1;\n}\n", tests__a__u_test_cpp="",
                  tests__a__v_test_cpp="", tests__b__aiuto_h="inline int aiuto() {\n  return 2;\n}\n",
                  tests__b__z_test_cpp="", tests__c__u_test_cpp="", tests__d__w_test_cpp="")
        nomi = [f"tests/{nome}_test.cpp" for nome in ("a/u", "a/v", "b/z", "c/u", "d/w")]
        self.assertEqual([[nomi[0], nomi[1], nomi[4]], nomi[2:4]], sorted(pulizia.gruppi(nomi)))

    def test_files_that_come_in_each_others_way_are_read_by_themselves(self):
        self.file(cases__a_h="struct Posto {};\n",
                  cases__b_cpp='#include "cases/a.h"\n\ndouble half(int a) { return a / 2; }\n',
                  cases__c_cpp="enum class Posto { Uno };\n")
        trovati = self.pulisci("cases/b.cpp", "cases/c.cpp")
        self.assertEqual(1, len(trovati), trovati)
        self.assertIn("bugprone-integer-division", trovati[0])

    def test_files_are_read_by_themselves_where_one_comes_in_the_way_of_what_another_includes(self):
        self.file(cases__a_h="#pragma once\nenum class Posto { Uno };\nPosto posto();\n",
                  games__b_cpp="constexpr int Posto() { return 1; }\n\ndouble half(int a) { return a / 2; }\n",
                  games__c_cpp='#include "cases/a.h"\n')
        trovati = self.pulisci("games/b.cpp", "games/c.cpp")
        self.assertEqual(["games/b.cpp:3"], [":".join(t.split(":")[:2]) for t in trovati])

    def test_a_file_that_does_not_compile_is_told(self):
        self.file(cases__a_cpp="int f() { return missing; }\n")
        self.assertIn("undeclared identifier", "".join(self.pulisci("cases/a.cpp")))

    def test_clang_tidy_reads_tests_with_what_the_build_gives_them(self):
        prova = ('#include "support/s.h"\n\nnamespace %s_test {\nconst char* where = FOLDER;\n'
                 "double half(int a) { return a / 2; }\n}\n\n#include \"%s_test.moc\"\n")
        self.file(tests__cases__a_test_cpp=prova % ("a", "a"), tests__cases__b_test_cpp=prova % ("b", "b"),
                  tests__support__s_h="#pragma once\nstruct S {};\n")
        with open("tests/cases/CMakeLists.txt", "w", encoding="utf-8") as file:
            file.write('target_compile_definitions(x PRIVATE FOLDER="${A}")\n')
        sorgenti.tutti.cache_clear()
        nomi = ["tests/cases/a_test.cpp", "tests/cases/b_test.cpp", "tests/support/s.h"]
        self.assertEqual([nomi[:2], nomi[2:]], pulizia.gruppi(nomi))
        self.assertEqual(["tests/cases/a_test.cpp:5", "tests/cases/b_test.cpp:5"],
                         [":".join(t.split(":")[:2]) for t in self.pulisci(*nomi)])

    def test_what_differs_from_main_is_changed_be_it_committed_or_not(self):
        self.git("checkout", "-q", "-b", "main")
        self.file(cases__a_cpp="", cases__b_cpp="", cases__c_cpp="", cases__d_cpp="", tests__e_cpp="")
        self.git("add", ".")
        self.git("commit", "-q", "-m", "a")
        self.git("checkout", "-q", "-b", "lavoro")
        self.file(cases__a_cpp="int a;\n")
        self.git("commit", "-q", "-a", "-m", "b")
        os.remove("cases/d.cpp")
        self.file(cases__b_cpp="int b;\n", games__f_cpp="", tests__e_cpp="int e;\n")
        self.assertEqual(["cases/a.cpp", "cases/b.cpp", "games/f.cpp", "tests/e.cpp"],
                         pulizia.cambiati())

    def test_the_length_of_functions_is_measured(self):
        self.file(cases__a_cpp="int f(int a) {\n  if (a) {\n    return 1;\n  }\n  return 2;\n}\n"
                               "A::A(int b) : c{b}, d(b) {\n}\n")
        self.assertEqual([(1, 6), (7, 2)], list(misure.funzioni("cases/a.cpp")))

    def test_the_depth_of_a_form_counts_the_classes_that_it_stands_on(self):
        self.file(app__a_h="class Forma : public platform::Form {};\n"
                           "class FormaA : public Forma {};\n"
                           "class FormB final : public FormaA {};\n"
                           "class FormC final : public Altra {};\n")
        self.assertEqual({"FormB": 3}, misure.profondita_delle_forme())

    def test_a_form_that_only_names_its_base_is_told(self):
        self.file(app__a_h="class Forma : public platform::Form {\n  void onLoad() override;\n};\n"
                           "class FormaA : public Forma {\n public:\n  explicit FormaA(int a) : Forma(a) {}\n};\n"
                           "class FormaB : public Forma {\n public:\n  using Forma::Forma;\n};\n"
                           "class FormaC : public Forma {\n public:\n  explicit FormaC(int a);\n  int b = 0;\n};\n"
                           "class FormaD : public Forma {\n  explicit FormaD(int a);\n  void onLoad() override;\n};\n")
        self.assertEqual(["FormaA", "FormaB"], list(misure.gusci()))


if __name__ == "__main__":
    unittest.main()
