# SPDX-License-Identifier: MIT
# The desktop's screen reader with a voice that writes to a file: a line for each thing said, an
# empty one when the reader falls silent. Usage: reader.py FILE FOLDER-FOR-SETTINGS [DEBUG-FILE]
import sys

from orca import debug, orca, settings, settings_manager, speechserver


class SpeechServer(speechserver.SpeechServer):
    """What the reader looks for in the module that its settings name."""

    said = open(sys.argv[1], "w", buffering=1, encoding="utf-8")

    @staticmethod
    def getSpeechServers():
        return [SpeechServer()]

    @staticmethod
    def getSpeechServer(info=None):
        return SpeechServer()

    def speak(self, text=None, acss=None, interrupt=True):
        if text:
            print(" ".join(text.split()), file=self.said)

    speakCharacter = speak

    def speakKeyEvent(self, event, acss=None):
        pass

    def stop(self):
        print(file=self.said)


if len(sys.argv) > 3:
    debug.debugLevel = debug.LEVEL_ALL
    debug.debugFile = open(sys.argv[3], "w")
settings.speechServerFactory = "__main__"
settings.speechFactoryModules = ["__main__"]
manager = orca.getSettingsManager()
manager.activate(sys.argv[2], {"enableBraille": False, "enableBrailleMonitor": False})
sys.exit(orca.main())
