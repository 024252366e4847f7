"""Stands in for the speech server's library of the same name, where a screen reader looks for it.

Nothing is heard: what the reader says is written, a line each, into the file that VOCE names:

    <seconds, monotonic>\t<"say" or "stop">\t<words>
"""

import os
import re
import time


class SSIPError(Exception):
    """The root of the library's errors; this one has none of its own."""


class SSIPCommunicationError(SSIPError):
    """Named by the reader."""


class SSIPCommandError(SSIPError):
    """Named by the reader."""


class CallbackType:
    """What the reader asks to be told of."""

    INDEX_MARK, BEGIN, END, CANCEL, PAUSE, RESUME = (
        "index_marks", "begin", "end", "cancel", "pause", "resume")


class PunctuationMode:
    """How much of the punctuation is spoken."""

    ALL, MOST, SOME, NONE = "all", "most", "some", "none"


class Priority:
    """Which of the server's queues a text goes to; the reader uses one."""

    IMPORTANT, TEXT, MESSAGE, NOTIFICATION, PROGRESS = (
        "important", "text", "message", "notification", "progress")


class DataMode:
    """How texts come."""

    TEXT, SSML = "text", "ssml"


class SSIPClient:
    """The reader's way to the server. What is not about speaking is taken and does nothing."""

    def __init__(self, *_, **__):
        self._foglio = open(os.environ["VOCE"], "a", encoding="utf-8", buffering=1)

    def _scrivi(self, verbo, parole=""):
        self._foglio.write(f"{time.monotonic():.4f}\t{verbo}\t{parole}\n")

    def speak(self, text, **_):
        parole = re.sub(r"<[^>]*>", "", text)
        for segno, carattere in (("&lt;", "<"), ("&gt;", ">"), ("&amp;", "&")):
            parole = parole.replace(segno, carattere)
        self._scrivi("say", " ".join(parole.split()))

    def char(self, char):
        self._scrivi("say", char)

    def key(self, key):
        self._scrivi("say", key)

    def cancel(self, *_):
        self._scrivi("stop")

    def stop(self, *_):
        self._scrivi("stop")

    def list_output_modules(self):
        return ()

    def list_synthesis_voices(self):
        return ()

    def close(self):
        self._foglio.close()

    def __getattr__(self, _):
        return lambda *_, **__: None
