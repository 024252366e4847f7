"""Figures fall short or are kept, measurements come to an end or do not, and all of it is told."""

import contextlib
import io
import os
import sys
import unittest
from unittest import mock

sys.dont_write_bytecode = True
RADICE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../..")
sys.path.insert(0, os.path.join(RADICE, "bench"))

import figura  # noqa: E402
import misura  # noqa: E402
import riposo  # noqa: E402
import tabella  # noqa: E402
from figura import Figura  # noqa: E402

INIZIO = Figura("start", "", 1.2, "times", "at most", 1.5)


def parte(comando, desktop=False):
    """A measurement that is a line of the shell."""
    return misura.Parte("a trial", ("sh", "-c", comando), desktop)


def dice(*figure):
    """A measurement that gives these figures."""
    righe = io.StringIO()
    with contextlib.redirect_stdout(righe):
        for presa in figure:
            figura.stampa(presa)
    return "printf '%s' '" + righe.getvalue() + "'"


class Figure(unittest.TestCase):
    """One figure."""

    def test_what_is_at_most_its_limit_is_kept(self):
        for valore, bene in ((1.5, True), (1.5000001, False)):
            self.assertEqual(INIZIO._replace(valore=valore).mantenuta(), bene)

    def test_what_must_stay_under_its_limit_falls_short_at_it(self):
        for valore, bene in ((0.99, True), (1, False)):
            self.assertEqual(Figura("rest", "", valore, "", "under", 1).mantenuta(), bene)

    def test_what_is_no_number_falls_short(self):
        self.assertFalse(INIZIO._replace(valore=float("nan")).mantenuta())

    def test_the_programs_line_is_read(self):
        # figura_test.cpp writes the same line.
        self.assertEqual(
            figura.leggi("figure\tshowing a form\tFormLU\t1.25\ttimes plain widgets\tat most\t2\n"),
            Figura("showing a form", "FormLU", 1.25, "times plain widgets", "at most", 2))

    def test_what_is_printed_here_is_read_too(self):
        righe = io.StringIO()
        with contextlib.redirect_stdout(righe):
            figura.stampa(INIZIO)
        self.assertEqual(figura.leggi(righe.getvalue()), INIZIO)

    def test_the_short_form_asks_for_fewer_repetitions(self):
        for ambiente, volte in (({}, 20), ({figura.BREVE: "1"}, 3)):
            with mock.patch.dict(os.environ, ambiente, clear=True):
                self.assertEqual(figura.quanti(20, 3), volte)

    def test_other_lines_are_no_figures(self):
        for riga in ("figures are fine\n", "figure\ta\tb\n", "figure\ta\tb\tc\td\tat most\t2\n",
                     "figure\ta\tb\t1\td\tabout\t2\n", "\n"):
            self.assertIsNone(figura.leggi(riga))


class Tabella(unittest.TestCase):
    """The table at the end."""

    def righe(self, figure, guasto=None):
        """The table's rows without its head and the part's name, with single blanks."""
        righe = tabella.righe([tabella.Esito("prova", figure, guasto)])
        self.assertEqual(righe[1], "prova")
        return [" ".join(riga.split()) for riga in righe[2:]]

    def test_a_row_says_figure_limit_and_verdict(self):
        self.assertEqual(self.righe([INIZIO, INIZIO._replace(nome="end", valore=1.6)]),
                         ["start 1.200 times at most 1.5 kept", "end 1.600 times at most 1.5 SHORT"])

    def test_of_many_forms_the_worst_is_told(self):
        forme = [INIZIO._replace(di=di, valore=valore)
                 for di, valore in (("A", 1.1), ("B", 1.4), ("C", 1.3))]
        self.assertEqual(self.righe(forme), ["start, worst of 3: B 1.400 times at most 1.5 kept"])

    def test_one_that_falls_short_of_a_limit_of_its_own_is_worse_than_a_larger_one(self):
        forme = [INIZIO._replace(di="A", valore=1.3), INIZIO._replace(di="B", valore=1.2, limite=1)]
        self.assertEqual(self.righe(forme), ["start, worst of 2: B 1.200 times at most 1 SHORT"])

    def test_each_form_that_falls_short_is_told(self):
        forme = [INIZIO._replace(di=di, valore=valore)
                 for di, valore in (("A", 1.6), ("B", 1.4), ("C", 1.7), ("D", float("nan")))]
        self.assertEqual(self.righe(forme), ["start, worst of 4: D nan times at most 1.5 SHORT",
                                             "start, C 1.700 times at most 1.5 SHORT",
                                             "start, A 1.600 times at most 1.5 SHORT"])

    def test_a_part_that_failed_says_why_beside_its_figures(self):
        self.assertEqual(self.righe([INIZIO], "ended with 3"),
                         ["start 1.200 times at most 1.5 kept", "ended with 3 FAILED"])


class Parti(unittest.TestCase):
    """A run of bench/misura, with other parts than its own."""

    def setUp(self):
        self.costruite = mock.Mock(return_value=True)
        self.addCleanup(os.chdir, os.getcwd())

    def esegui(self, parti, *argomenti):
        """Exit status, and what was said."""
        detto = io.StringIO()
        with mock.patch.object(misura, "PARTI", parti), mock.patch.dict(os.environ), \
                mock.patch.object(misura, "costruisci", self.costruite), \
                contextlib.redirect_stdout(detto), contextlib.redirect_stderr(detto):
            os.environ.pop(figura.BREVE, None)
            try:
                stato = misura.main(argomenti)
            except SystemExit as fine:
                stato = fine.code
        return stato, detto.getvalue()

    def test_all_kept_gives_0_and_says_so(self):
        stato, detto = self.esegui({"a": parte(dice(INIZIO)), "b": parte(dice(INIZIO))})
        self.assertEqual(stato, 0, detto)
        self.assertRegex(detto, r"\n0:0\d: all 2 figures kept\n$")

    def test_a_figure_that_falls_short_gives_1_whatever_comes_after_it(self):
        corta = INIZIO._replace(valore=1.6)
        stato, detto = self.esegui({"a": parte(dice(corta)), "b": parte(dice(INIZIO))})
        self.assertEqual(stato, 1)
        self.assertIn("  start: 1.600 times (at most 1.5) SHORT\n", detto)
        self.assertRegex(detto, r"1 of 2 figures fall short\n$")

    def test_a_part_that_a_signal_ended_gives_1_and_keeps_its_figures(self):
        stato, detto = self.esegui({"a": parte(dice(INIZIO) + "; kill -SEGV $$"),
                                    "b": parte(dice(INIZIO))})
        self.assertEqual(stato, 1)
        self.assertIn("  FAILED: a was ended by SIGSEGV\n", detto)
        self.assertIn("part 2 of 2: b", detto)
        self.assertRegex(detto, r"1 of 2 parts failed\n$")
        self.assertEqual(detto.count("kept\n"), 2)

    def test_a_part_that_ends_badly_gives_1(self):
        stato, detto = self.esegui({"a": parte(dice(INIZIO) + "; exit 3")})
        self.assertEqual(stato, 1)
        self.assertIn("FAILED: a ended with 3\n", detto)

    def test_a_part_without_a_figure_gives_1(self):
        stato, detto = self.esegui({"a": parte("echo nothing was found")})
        self.assertEqual(stato, 1)
        self.assertIn("  nothing was found\n", detto)
        self.assertIn("FAILED: a gave no figure\n", detto)

    def test_a_part_that_is_not_there_gives_1(self):
        stato, detto = self.esegui({"a": misura.Parte("a trial", ("/no/program",), False)})
        self.assertEqual(stato, 1)
        self.assertRegex(detto, r"FAILED: a .*/no/program")

    def test_only_the_parts_named_are_built_and_run_in_their_order(self):
        parti = {nome: parte(dice(INIZIO)) for nome in "abc"}
        stato, detto = self.esegui(parti, "c", "a")
        self.assertEqual(stato, 0)
        self.assertEqual([r[7:] for r in detto.splitlines() if r.startswith("[")],
                         ["part 1 of 2: c, a trial", "part 2 of 2: a, a trial"])
        self.assertEqual(list(self.costruite.call_args[0][0]), [parti["c"], parti["a"]])

    def test_an_unknown_part_gives_2_before_anything_is_built(self):
        stato, detto = self.esegui({"a": parte("true"), "b": parte("true")}, "a", "x")
        self.assertEqual(stato, 2)
        self.assertIn("there is no part x; the parts are a, b\n", detto)
        self.costruite.assert_not_called()

    def test_where_the_build_fails_nothing_is_run(self):
        self.costruite.return_value = False
        stato, detto = self.esegui({"a": parte(dice(INIZIO))})
        self.assertEqual((stato, detto), (1, ""))

    def test_the_short_form_is_told_to_the_parts(self):
        parti = {"a": parte('echo "short: $MISURA_BREVE"; ' + dice(INIZIO))}
        self.assertIn("  short: 1\n", self.esegui(parti, "--breve")[1])
        self.assertIn("  short: \n", self.esegui(parti)[1])

    def test_a_desktop_has_a_display_and_nobody_listens_there(self):
        comando = 'echo "$DISPLAY,$QT_LINUX_ACCESSIBILITY_ALWAYS_ON."; ' + dice(INIZIO)
        self.assertRegex(self.esegui({"a": parte(comando, desktop=True)})[1], r"\n  :\d+,\.\n")


class Righe(unittest.TestCase):
    """The parts that there are."""

    def test_what_a_part_runs_is_built(self):
        with mock.patch.object(misura.subprocess, "run") as esegui:
            misura.costruisci([misura.PARTI["avvio"], misura.PARTI["riposo"]])
        self.assertEqual(esegui.call_args[0][0],
                         ["tools/costruisci", "dev", "-DSOMME_BENCH=ON", "cartella", "bench_avvio",
                          "bench_vuoto", "bench_riposo"])

    def test_each_measurement_that_is_built_is_run_by_a_part(self):
        comandi = " ".join(parola for p in misura.PARTI.values() for parola in p.comando)
        for file in os.listdir(os.path.join(RADICE, "bench")):
            with open(os.path.join(RADICE, "bench", file), encoding="utf-8") as testo:
                if "int main(" in testo.read():
                    self.assertIn("bench_" + file.removesuffix(".cpp"), comandi)


class Riposo(unittest.TestCase):
    """Which forms are watched side by side."""

    def coppie(self, elenco, *scelte):
        """The pairs of a form and a way of input, from the lines that the bench lists its forms in."""
        risposta = mock.Mock(stdout=elenco)
        with mock.patch.object(riposo.subprocess, "run", return_value=risposta):
            return list(riposo.le_coppie("bench", scelte))

    def test_every_form_is_watched_in_each_of_its_ways(self):
        coppie = self.coppie("".join(f"Form{i} 0\n" for i in range(20)) + "FormLUScansione 1 2\nFormLUHK 3\n")
        self.assertEqual(coppie[-3:], [("FormLUScansione", riposo.MANUALE),
                                       ("FormLUScansione", riposo.AUTOMATICA), ("FormLUHK", 3)])
        giri = list(riposo.giri(coppie))
        self.assertEqual(sorted(coppia for giro in giri for coppia in giro), sorted(coppie))
        self.assertTrue(all(0 < len(giro) <= riposo.CORSIE for giro in giri))

    def test_scanning_is_watched_by_hand_and_by_itself(self):
        coppie = self.coppie("FormLU 0\nFormLUScansione 1 2\n", "FormLUScansione")
        self.assertEqual(list(riposo.giri(coppie)),
                         [[("FormLUScansione", riposo.MANUALE)],
                          [("FormLUScansione", riposo.AUTOMATICA)]])

    def test_steps_are_not_watched_beside_forms_that_stand_still(self):
        coppie = self.coppie("FormLU 0\nFormLUScansione 1 2\nFormHLUScansione 1 2\n")
        for giro in riposo.giri(coppie):
            self.assertEqual(len({modo == riposo.AUTOMATICA for _, modo in giro}), 1)


if __name__ == "__main__":
    unittest.main()
