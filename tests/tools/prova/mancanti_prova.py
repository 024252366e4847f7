#!/usr/bin/python3
"""Starts the launcher of the portable archive in folders from which parts are missing."""

import os
import shutil
import subprocess
import tempfile
import unittest

LANCIO = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../../tools/portatile/somme")


class MancantiProva(unittest.TestCase):
    """What is missing is named; nothing else keeps the program from starting."""

    def setUp(self):
        self._dove = tempfile.TemporaryDirectory(prefix="portatile à uno ")
        self.addCleanup(self._dove.cleanup)
        self._cartella = self._dove.name
        os.makedirs(self._file("programma/lib"))
        shutil.copy(LANCIO, self._file("somme"))
        self._scrivi("programma/somme", "#!/bin/sh\necho partito\n")
        os.chmod(self._file("programma/somme"), 0o755)
        self._scrivi("programma/lib/libuna.so.1", "x")
        self._scrivi("programma/parti", "programma/lib/libuna.so.1\nprogramma/somme\n")

    def _file(self, nome):
        return os.path.join(self._cartella, nome)

    def _scrivi(self, nome, testo):
        with open(self._file(nome), "w", encoding="utf-8") as file:
            file.write(testo)

    def _avvia(self, lingua="C", comando=None):
        return subprocess.run([comando or self._file("somme")], capture_output=True, text=True, check=False,
                              env={"PATH": "/usr/bin:/bin", "LANG": lingua}, cwd="/")

    def test_a_whole_folder_starts_also_through_a_link(self):
        legame = self._file("legame")
        os.symlink(self._file("somme"), legame)
        for comando in (None, legame):
            esito = self._avvia(comando=comando)
            self.assertEqual((esito.returncode, esito.stdout, esito.stderr), (0, "partito\n", ""))

    def test_a_missing_library_is_named(self):
        os.unlink(self._file("programma/lib/libuna.so.1"))
        esito = self._avvia()
        self.assertEqual((esito.returncode, esito.stdout), (1, ""))
        self.assertIn("programma/lib/libuna.so.1", esito.stderr)
        self.assertNotIn("programma/somme\n", esito.stderr)

    def test_an_empty_file_is_missing_too(self):
        self._scrivi("programma/somme", "")
        self.assertIn("programma/somme", self._avvia().stderr)

    def test_the_list_itself_is_named(self):
        os.unlink(self._file("programma/parti"))
        esito = self._avvia()
        self.assertEqual(esito.returncode, 1)
        self.assertEqual(esito.stderr.splitlines()[1:], ["  programma/parti"])

    def test_it_speaks_the_language_of_the_desktop(self):
        os.unlink(self._file("programma/somme"))
        for lingua, parola in (("it_IT.UTF-8", "mancano"), ("de_DE.UTF-8", "fehlen"), ("fr_FR.UTF-8", "manque"),
                               ("es_ES.UTF-8", "faltan"), ("pl_PL.UTF-8", "missing")):
            self.assertIn(parola, self._avvia(lingua).stderr)


if __name__ == "__main__":
    unittest.main()
