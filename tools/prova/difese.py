"""How a program is hardened, seen from its file: what Debian's own packages have, and some more.

    difese.py <program>

Says what is missing, and ends with 0 when nothing is. What need not leave a trace in a file, bounds
of calls of the C library and probes of large frames, is looked for in the commands of the build.
"""

import re
import subprocess
import sys

# What a function begins with that may be reached by a jump to its address, by the processor's name:
# endbr64; paciasp or bti c; endbr32.
APPRODI = {
    "Advanced Micro Devices X86-64": (b"\xf3\x0f\x1e\xfa",),
    "AArch64": (b"\x3f\x23\x03\xd5", b"\x5f\x24\x03\xd5"),
    "Intel 80386": (b"\xf3\x0f\x1e\xfb",),
}
# The number of those in what the compiler itself adds to each program, whatever that is made with.
APPRODI_DI_TUTTI = 16


def _readelf(*comando):
    return subprocess.run(["readelf", "-W", *comando], check=True, capture_output=True, text=True,
                          env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout


def _istruzioni(percorso):
    """The bytes of the section .text."""
    trovata = re.search(r"\.text +PROGBITS +\w+ (\w+) (\w+) ", _readelf("-S", percorso))
    with open(percorso, "rb") as file:
        file.seek(int(trovata[1], 16))
        return file.read(int(trovata[2], 16))


def mancano(percorso):
    """What of the defences a program does not have, in words."""
    testa, parti = _readelf("-h", percorso), _readelf("-l", percorso)
    dinamica, simboli = _readelf("-d", percorso), _readelf("--dyn-syms", percorso)
    subito = re.search(r"\(FLAGS\).*\bBIND_NOW\b|\(FLAGS_1\).*\bNOW\b", dinamica)
    prove = {
        "it stands at an address of its own at each start (PIE)":
            "Type:                              DYN" in testa
            and re.search(r"\(FLAGS_1\).*\bPIE\b", dinamica),
        "what the loader has written is closed (RELRO)": "GNU_RELRO" in parti,
        "every symbol is bound at the start (BIND_NOW)": subito,
        "the stack cannot be run": re.search(r"GNU_STACK .* RW +0x", parti),
        "frames are guarded (stack protector)": "__stack_chk_fail" in simboli,
    }
    processore = re.search(r"Machine: +(.*)", testa)[1]
    if processore in APPRODI:
        istruzioni = _istruzioni(percorso)
        prove["jumps land where they may (control-flow protection)"] = (
            sum(istruzioni.count(a) for a in APPRODI[processore]) > APPRODI_DI_TUTTI)
    return [parole for parole, vero in prove.items() if not vero]


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    guai = mancano(sys.argv[1])
    for guaio in guai:
        print(f"not so: {guaio}", file=sys.stderr)
    return 1 if guai else 0


if __name__ == "__main__":
    sys.exit(main())
