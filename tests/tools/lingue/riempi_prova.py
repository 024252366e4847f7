"""tools/lingue/riempi: a translator's list against the Italian file."""

import os
import subprocess
import tempfile
import unittest

CASA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../..")
RIEMPI = os.path.join(CASA, "tools/lingue/riempi")

ITALIANO = """; Italiano.

[Strings]
0002="Errati"

[FormBarre10]
FormBarre10.Caption="Somme"
ImgSi.ToolTipText="Giusto"
Label4(1).Caption="+"

[FormBarre20]
ImgSi.ToolTipText="Giusto"
"""


class Riempi(unittest.TestCase):
    def setUp(self):
        cartella = tempfile.TemporaryDirectory()
        self.addCleanup(cartella.cleanup)
        self.cartella = cartella.name

    def percorso(self, nome):
        return os.path.join(self.cartella, nome)

    def metti(self, nome, testo):
        with open(self.percorso(nome), "w", encoding="utf-8", newline="") as file:
            file.write(testo)

    def riempi(self, parole, italiano=ITALIANO, scrive=True):
        """The outcome, and the file that was written, or None."""
        self.metti("Italiano.lng", italiano)
        self.metti("A.parole", parole)
        nomi = ["Italiano.lng", "A.parole"] + (["A.lng"] if scrive else [])
        esito = subprocess.run([RIEMPI] + [self.percorso(nome) for nome in nomi],
                               capture_output=True, text=True, check=False)
        if not os.path.exists(self.percorso("A.lng")):
            return esito, None
        with open(self.percorso("A.lng"), encoding="utf-8", newline="") as file:
            return esito, file.read()

    def test_what_many_forms_say_is_written_once(self):
        esito, scritto = self.riempi('; Deutsch.\n\n"Errati" = "Falsch"\n"Somme" = "Addition"\n'
                                     '"Giusto" = "Richtig"\n')
        self.assertEqual((0, ""), (esito.returncode, esito.stderr))
        self.assertEqual("""; Deutsch.

[Strings]
0002="Falsch"

[FormBarre10]
FormBarre10.Caption="Addition"
ImgSi.ToolTipText="Richtig"
Label4(1).Caption="+"

[FormBarre20]
ImgSi.ToolTipText="Richtig"
""", scritto)

    TUTTE = '"Errati" = "a"\n"Somme" = "b"\n"Giusto" = "c"\n'

    def test_one_place_may_have_words_of_its_own(self):
        _, scritto = self.riempi(self.TUTTE + '[FormBarre20]\n"Giusto" = "d"\n'
                                 '[FormBarre10]\nFormBarre10.Caption = "e"\n')
        self.assertEqual(1, scritto.count('ImgSi.ToolTipText="c"'))
        self.assertEqual(1, scritto.count('ImgSi.ToolTipText="d"'))
        self.assertIn('FormBarre10.Caption="e"', scritto)

    def test_signs_may_have_words_too(self):
        _, scritto = self.riempi(self.TUTTE + '"+" = "plus"\n')
        self.assertIn('Label4(1).Caption="plus"', scritto)

    def test_blanks_and_signs_of_equality_are_part_of_a_text(self):
        _, scritto = self.riempi('" a = b " = "  c = d"\n"=" = "is"\n',
                                 '[A]\nA=" a = b "\nB="="\n')
        self.assertEqual('[A]\nA="  c = d"\nB="is"\n', scritto)

    def test_a_missing_text_is_told_once_and_left_out(self):
        esito, scritto = self.riempi('"Errati" = "a"\n"Somme" = "b"\n')
        self.assertEqual(0, esito.returncode)
        self.assertEqual(1, len(esito.stderr.splitlines()))
        self.assertIn('"Giusto" is missing, of [FormBarre10] ImgSi.ToolTipText', esito.stderr)
        self.assertNotIn("ImgSi", scritto)

    def test_a_text_of_letters_and_signs_is_missing_too(self):
        esito, _ = self.riempi('"x" = "y"\n', '[A]\nA="x"\nB="10 h = 1 k"\n')
        self.assertIn('"10 h = 1 k" is missing, of [A] B', esito.stderr)

    def test_a_text_that_no_form_says_is_told(self):
        esito, _ = self.riempi(self.TUTTE + '"Sbagliato" = "d"\n')
        self.assertIn('A.parole:4: "Sbagliato" is said nowhere', esito.stderr)

    def test_without_a_file_to_write_what_is_told_is_a_failure(self):
        self.assertEqual(0, self.riempi(self.TUTTE, scrive=False)[0].returncode)
        for parole in ('"Errati" = "a"\n"Somme" = "b"\n', self.TUTTE + '"Sbagliato" = "d"\n'):
            esito, scritto = self.riempi(parole, scrive=False)
            self.assertEqual((1, None), (esito.returncode, scritto))

    def test_a_line_of_no_meaning_a_double_one_and_other_ends_of_lines_are_refused(self):
        for parole, detto in ((self.TUTTE + "Giusto = c\n", "A.parole:4: not of the form"),
                              (self.TUTTE + 'A.Caption = "d"\n', "A.parole:4: not of the form"),
                              (self.TUTTE + '"Somme" = "d"\n', "A.parole:4: \"Somme\" stands"),
                              (self.TUTTE.replace("\n", "\r\n"), "line feed"),
                              (self.TUTTE + '"A" = "b"', "line feed")):
            esito, scritto = self.riempi(parole)
            self.assertEqual((1, None), (esito.returncode, scritto))
            self.assertIn(detto, esito.stderr)

    def test_every_list_of_the_program_says_all_that_is_said_in_italian_and_no_more(self):
        lingue = os.path.join(CASA, "lingue")
        liste = [nome for nome in os.listdir(lingue) if nome.endswith(".parole")]
        self.assertNotEqual([], liste)
        for nome in liste:
            esito = subprocess.run([RIEMPI, os.path.join(lingue, "Italiano.lng"),
                                    os.path.join(lingue, nome)],
                                   capture_output=True, text=True, check=False)
            self.assertEqual((0, ""), (esito.returncode, esito.stderr))


if __name__ == "__main__":
    unittest.main()
