"""Each defence of a program is missed where it is not there, and none where all are.

    difese_prova.py <C++ compiler> <compile_commands.json of the build> <1 where it is hardened>
"""

import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../../tools/prova"))

import difese  # noqa: E402

COMPILATORE, COMANDI, INDURITA = sys.argv[1:4]
# A frame to guard; many functions that may be reached by their address.
PROGRAMMA = """
#include <cstdio>
#include <cstring>
int large(const char* word) {
  volatile char buffer[100000];
  buffer[0] = *word;
  char copy[64];
  std::strcpy(copy, word);
  return buffer[0] + std::printf("%s", copy);
}
""" + "".join(f"int many{i}(int a) {{ return a + {i}; }}\n" for i in range(40)) + """
int main(int n, char** words) { return large(words[0]) + many1(n); }
"""
# The options for control flow with all of it, and without.
SALTI = (("-mbranch-protection=standard", "-mbranch-protection=none")
         if "aarch64" in subprocess.run([COMPILATORE, "-dumpmachine"], check=True, capture_output=True,
                                        text=True).stdout
         else ("-fcf-protection", "-fcf-protection=none"))
TUTTE = {"stack": "-fstack-protector-strong", "jumps": SALTI[0], "pie": "-fPIE -pie",
         "relro": "-Wl,-z,relro", "now": "-Wl,-z,now", "noexec": "-Wl,-z,noexecstack"}
SENZA = {"stack": "-fno-stack-protector", "jumps": SALTI[1],
         "pie": "-fno-pie -no-pie", "relro": "-Wl,-z,norelro", "now": "-Wl,-z,lazy",
         "noexec": "-Wl,-z,execstack"}


class Difese(unittest.TestCase):
    """Small programs, hardened all but for one thing."""

    def mancano(self, **altre):
        opzioni = " ".join({**TUTTE, **altre}.values()).split()
        with tempfile.TemporaryDirectory() as cartella:
            sorgente, programma = (os.path.join(cartella, n) for n in ("a.cpp", "a"))
            with open(sorgente, "w", encoding="ascii") as file:
                file.write(PROGRAMMA)
            subprocess.run([COMPILATORE, "-O2", "-s", *opzioni, sorgente, "-o", programma], check=True)
            return difese.mancano(programma)

    def test_a_program_with_all_of_them_misses_none(self):
        self.assertEqual(self.mancano(), [])

    def test_each_that_is_left_out_is_missed_by_its_name(self):
        attese = {"stack": "stack protector", "jumps": "control-flow", "pie": "PIE",
                  "relro": "RELRO", "now": "BIND_NOW", "noexec": "cannot be run"}
        for quale, parola in attese.items():
            with self.subTest(quale):
                guai = self.mancano(**{quale: SENZA[quale]})
                self.assertEqual(len(guai), 1, guai)
                self.assertIn(parola, guai[0])


@unittest.skipUnless(INDURITA == "1", "this build is not hardened")
class Comandi(unittest.TestCase):
    """How the build compiles what ships."""

    def test_every_file_of_the_program_is_compiled_with_every_defence(self):
        with open(COMANDI, encoding="utf-8") as file:
            comandi = json.load(file)
        # What ships are the rooms and the entry routine, each an own target named after the program.
        usciti = ((c, c["command"].split(" -o ")[1]) for c in comandi)
        nostri = [c for c, uscita in usciti if re.search(r"/somme(_\w+)?\.dir/", uscita)
                  and not uscita.startswith(("tools/", "tests/", "bench/"))]
        self.assertGreater(len(nostri), 100)
        for opzione in ("-fstack-protector-strong", "-fstack-clash-protection",
                        "-D_FORTIFY_SOURCE=2", "-Werror=format-security"):
            senza = [c["file"] for c in nostri if opzione not in c["command"].split()]
            self.assertEqual(senza, [], opzione)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
