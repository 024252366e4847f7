#!/usr/bin/python3
"""Runs a command that needs programs of another of Debian's architectures, and ends with its status.

    emulazione.py <architecture, such as arm64> <command> [<argument> ...]

What the kernel runs by itself, as one of 64 bits does programs of 32, is left to it. Else it is told to
start an emulator (qemu-user-static) for them; that takes root. It forgets that with the end of the
command, or, where this machine has its list of emulators open, at its next start. What waits for an
emulated program is told in LENTEZZA how many times longer that may take.
"""

import errno
import os
import subprocess
import sys

# What the first 20 bytes of a program are, a mask of what of them counts, and its emulator.
EMULATORI = {
    "arm64": (r"\x7fELF\x02\x01\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02\x00\xb7\x00",
              r"\xff\xff\xff\xff\xff\xff\xff\x00\xff\xff\xff\xff\xff\xff\xff\xff\xfe\xff\xff\xff",
              "/usr/bin/qemu-aarch64-static"),
    "i386": (r"\x7fELF\x01\x01\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02\x00\x03\x00",
             r"\xff\xff\xff\xff\xff\xfe\xfe\x00\xff\xff\xff\xff\xff\xff\xff\xff\xfe\xff\xff\xff",
             "/usr/bin/qemu-i386-static"),
}
# The list is forgotten when nobody has it open. P: the program is told the name that it was called by.
# F: the emulator is opened at once, and serves in trees in which it does not lie.
EMULA = r"""
mount -t binfmt_misc binfmt_misc /proc/sys/fs/binfmt_misc || exit 1
if ! arch-test "$1" >/dev/null; then
  printf '%s' "$2" >/proc/sys/fs/binfmt_misc/register
  arch-test "$1" >/dev/null || { arch-test "$1" >&2; exit 1; }
fi
shift 2
exec "$@"
"""
LENTEZZA = "6"
# How waitid is asked for a process by a file that stands for it.
P_PIDFD = 3


def senza_pidfd():
    """From here on the kernel says that it knows no files that stand for processes.

    It does, but the emulator cannot start a process with one, and Qt, which is told so by waitid alone, would
    start none at all. Else it starts them in the older way.
    """
    # Installed together with the emulator.
    import seccomp
    filtro = seccomp.SyscallFilter(seccomp.ALLOW)
    filtro.add_rule(seccomp.ERRNO(errno.EINVAL), "waitid", seccomp.Arg(0, seccomp.EQ, P_PIDFD))
    filtro.set_attr(seccomp.Attr.ACT_BADARCH, seccomp.ALLOW)
    filtro.set_attr(seccomp.Attr.CTL_NNP, 0)
    filtro.load()


def main():
    if len(sys.argv) < 3 or sys.argv[1] not in EMULATORI:
        print(__doc__, file=sys.stderr)
        return 2
    architettura, *comando = sys.argv[1:]
    if subprocess.run(["arch-test", "-n", architettura], capture_output=True, check=False).returncode == 0:
        os.execvp(comando[0], comando)
    magia, maschera, emulatore = EMULATORI[architettura]
    riga = f":somme-{architettura}:M::{magia}:{maschera}:{emulatore}:PF"
    os.environ["LENTEZZA"] = LENTEZZA
    senza_pidfd()
    os.execvp("unshare", ["unshare", "--mount", "sh", "-c", EMULA, "sh", architettura, riga, *comando])


if __name__ == "__main__":
    sys.exit(main())
