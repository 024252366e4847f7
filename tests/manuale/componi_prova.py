"""manuale/componi.py: a book of the page that all languages share and the texts of one.

    componi_prova.py <folder of the language files>
"""

import os
import re
import subprocess
import sys
import tempfile
import unittest

CASA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../..")
MANUALE = os.path.join(CASA, "manuale")
LINGUE = sys.argv.pop()

PAGINA = """<html lang="{lingua}"><h1>{titolo}</h1><p>{primo}</p><td>{=FormMenu/Esci.Caption}</td>
<img src="punto.png" alt="{figura}"></html>
"""
TESTI = """# A comment.
lingua: it
titolo: Somme
primo: Premete <i>Esci</i>
  due volte.
figura: Un <b>punto</b>
"""
PAROLE = """[FormMenu]
Esci.Caption="&Esci"
"""


class Componi(unittest.TestCase):
    def setUp(self):
        cartella = tempfile.TemporaryDirectory()
        self.addCleanup(cartella.cleanup)
        self.cartella = cartella.name
        self.metti("libro.html", PAGINA)
        self.metti("Italiano.testi", TESTI)
        self.metti("Italiano.lng", PAROLE)
        self.metti("punto.png", "punto")

    def percorso(self, nome):
        return os.path.join(self.cartella, nome)

    def metti(self, nome, testo):
        with open(self.percorso(nome), "w", encoding="utf-8") as file:
            file.write(testo)

    def chiama(self, *argomenti):
        return subprocess.run(["/usr/bin/python3", "-B", os.path.join(MANUALE, "componi.py"), *argomenti],
                              capture_output=True, text=True, check=False)

    def componi(self):
        """The outcome, and the book, or None."""
        esito = self.chiama(*map(self.percorso, ("libro.html", "Italiano.testi", "Italiano.lng", "esito", "")))
        if not os.path.exists(self.percorso("esito")):
            return esito, None
        with open(self.percorso("esito"), encoding="utf-8") as file:
            return esito, file.read()

    def controlla(self, lingua="Italiano"):
        return self.chiama("--controlla", self.percorso("libro.html"), self.percorso(lingua + ".testi"),
                           self.cartella)

    def traduci(self, testi):
        self.metti("English.testi", testi)
        self.metti("English.lng", PAROLE.replace("Esci\"", "Exit\""))
        return self.controlla("English")

    def test_the_page_is_filled_with_texts_words_of_the_program_and_pictures(self):
        esito, libro = self.componi()
        self.assertEqual(esito.returncode, 0, esito.stderr)
        self.assertEqual(libro, '<html lang="it"><h1>Somme</h1><p>Premete <i>Esci</i> due volte.</p>'
                         '<td>Esci</td>\n<img src="data:image/png;base64,cHVudG8=" alt="Un punto">'
                         "</html>\n")

    def test_a_text_or_a_picture_that_is_not_there_makes_no_book(self):
        for nome, testo in (("Italiano.testi", TESTI.replace("titolo", "tittolo")),
                            ("Italiano.lng", PAROLE.replace("Esci.", "Chiudi.")),
                            ("libro.html", PAGINA.replace("punto.png", "virgola.png"))):
            with self.subTest(nome):
                self.setUp()
                self.metti(nome, testo)
                esito, libro = self.componi()
                self.assertEqual((esito.returncode, libro), (1, None))
                self.assertRegex(esito.stderr, r"\{titolo\}|Esci\.Caption|virgola\.png")

    def test_a_text_that_stands_twice_is_refused_and_so_is_a_line_that_is_none(self):
        for riga in ("titolo: Sottrazioni", "Sottrazioni"):
            with self.subTest(riga):
                self.metti("Italiano.testi", TESTI + riga + "\n")
                esito, libro = self.componi()
                self.assertEqual((esito.returncode, libro), (1, None))
                self.assertIn("Italiano.testi:7: ", esito.stderr)

    def test_texts_that_fit_are_told_of_by_silence(self):
        esito = self.controlla()
        self.assertEqual((esito.returncode, esito.stderr), (0, ""))

    def test_a_section_that_one_language_lacks_or_has_alone_is_told(self):
        for testi, detto in ((TESTI.replace("titolo: Somme\n", ""), "titolo is missing"),
                             (TESTI + "fine: Fine\n", "fine stands nowhere on the page")):
            with self.subTest(detto):
                self.metti("Italiano.testi", testi)
                esito = self.controlla()
                self.assertEqual(esito.returncode, 1)
                self.assertIn(detto, esito.stderr)

    def test_a_translation_keeps_the_marks_of_the_italian_text(self):
        esito = self.traduci(TESTI.replace("Esci", "Exit"))
        self.assertEqual((esito.returncode, esito.stderr), (0, ""))
        esito = self.traduci(TESTI.replace("<i>Esci</i>", "Exit"))
        self.assertEqual(esito.returncode, 1)
        self.assertIn("primo bears other marks than in Italiano: <i>", esito.stderr)

    def test_what_is_quoted_of_the_program_is_what_it_says_in_that_language(self):
        esito = self.traduci(TESTI)
        self.assertEqual(esito.returncode, 1)
        self.assertIn("primo quotes what the program does not say: Esci", esito.stderr)

    def test_a_book_of_more_than_twenty_pages_is_refused_and_so_is_one_without_any(self):
        for pagine, esito in ((1, 0), (20, 0), (21, 1), (0, 1)):
            with self.subTest(pagine):
                self.metti("libro.pdf", "<</Type /Pages /Count 9>>" + "<</Type /Page /Parent 1 0 R>>" * pagine)
                fatto = self.chiama("--pagine", self.percorso("libro.pdf"))
                self.assertEqual(fatto.returncode, esito)
                self.assertEqual("pages, 20 at most" in fatto.stderr, esito == 1)


class Libri(unittest.TestCase):
    """The manuals as they stand."""

    def lingue(self):
        return sorted(nome[:-4] for nome in os.listdir(LINGUE) if nome.endswith(".lng"))

    def test_the_texts_of_every_language_of_the_program_fit_the_page(self):
        self.assertIn("Italiano", self.lingue())
        for lingua in self.lingue():
            with self.subTest(lingua):
                esito = subprocess.run(
                    ["/usr/bin/python3", "-B", os.path.join(MANUALE, "componi.py"), "--controlla",
                     os.path.join(MANUALE, "libro.html.in"),
                     os.path.join(MANUALE, "testi", lingua + ".testi"), LINGUE],
                    capture_output=True, text=True, check=False)
                self.assertEqual((esito.returncode, esito.stderr), (0, ""))

    def test_the_build_lays_out_a_book_in_every_language(self):
        with open(os.path.join(MANUALE, "CMakeLists.txt"), encoding="utf-8") as file:
            libri = dict(re.findall(r"^libro\((\S+) (\S+)\)$", file.read(), re.M))
        self.assertEqual(sorted(libri.values()), self.lingue())
        self.assertEqual(libri["somme.pdf"], "Italiano")


if __name__ == "__main__":
    unittest.main()
