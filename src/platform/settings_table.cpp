// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings_table.h"

namespace {

using S = Setting;
using T = SettingType;
constexpr auto ofKernling = SettingsWindow::frmKernlingOptions;

// The first-run value of MaxTriesToPlace and its repair value differ on purpose: a new board is placed
// quickly, while somebody who empties the field wants no limit to be felt. VokalTipTime is never repaired;
// blank counts as 0.
// clang-format off
constexpr std::array<SettingRow, static_cast<std::size_t>(Setting::Count)> table{{
    {S::NumWortel, "NumWortel", T::Integer, u"20", u"20", "TxtNumWortel", "FrameBoard", S::NumWortel, u"Anzahl", u"Wortel auf dem Spielfeld nach dem Auffüllen"},
    {S::WortelFile, "WortelFile", T::Path, u"%APP%text\\Hauptbausteine.Txt", u"%APP%text\\Hauptbausteine.Txt", "Text2", "Frame4", S::WortelFile, u"Hauptbausteine", nullptr},
    {S::BackgroundPicture, "BackgroundPicture", T::Path, u"", nullptr, "Text7", "Frame4", S::BackgroundPicture, u"Hintergrund", nullptr},
    {S::ScrollerSpeed, "ScrollerSpeed", T::Integer, u"3", u"3", "Text9", "FrameAbschreiben", S::ScrollerSpeed, u"Scroll-Geschwindigkeit", nullptr},
    {S::NumReTypeWords, "NumReTypeWords", T::Integer, u"10", u"10", "Text8", "FrameAbschreiben", S::NumReTypeWords, u"Anzahl der zufällig ausgewählten Wörter, die aus aktuell sichtbaren Morphemen bestehen", nullptr},
    {S::NumPseudoReTypeWords, "NumPseudoReTypeWords", T::Integer, u"10", u"10", "Text11", "FrameAbschreiben", S::NumPseudoReTypeWords, u"Anzahl der zufällig ausgewählten Unsinnswörter, die aus aktuell sichtbaren Morphemen bestehen", nullptr},
    {S::ScrollerCanPan, "ScrollerCanPan", T::Box, u"1", nullptr, "Check1", "FrameAbschreiben", S::ScrollerCanPan, u"Wort kann während des Scrollens angehalten oder verschoben werden", nullptr},
    {S::SoundOnAllReTyped, "SoundOnAllReTyped", T::Box, u"1", nullptr, "Check2", "FrameAbschreiben", S::SoundOnAllReTyped, u"Ton, wenn alle Wörter richtig abgeschrieben sind", nullptr},
    {S::SoundOnActions, "SoundOnActions", T::Box, u"1", nullptr, "Check6", "FrameGeneral", S::SoundOnActions, u"Töne", nullptr},
    {S::ShowCorrectListAfterGame, "ShowCorrectListAfterGame", T::Box, u"0", nullptr, "Check3", "Frame3", S::ShowCorrectListAfterGame, u"Wörterliste zeigen als Abschluss einer Spielrunde", nullptr},
    {S::ShowCorrectListAfterReType, "ShowCorrectListAfterReType", T::Box, u"1", nullptr, "Check4", "FrameAbschreiben", S::ShowCorrectListAfterReType, u"Wörterliste zeigen, wenn alle Wörter richtig abgeschrieben sind", nullptr},
    {S::UseLexTip, "UseLexTip", T::Box, u"1", nullptr, "ChkTipEnabled", "FrameGeneral", S::UseLexTip, u"Rechtschreib-Tipp zeigen", nullptr},
    {S::UseGameLexTip, "UseGameLexTip", T::Box, u"1", nullptr, "ChkGameTipEnabled", "Frame3", S::UseGameLexTip, u"Rechtschreib-Tipp zeigen", nullptr},
    {S::VokalTipEnabled, "VokalTipEnabled", T::Box, u"1", nullptr, "ChkVokalTipEnabled", "Frame5", S::VokalTipEnabled, u"Rechtschreib-Tipp zeigen", nullptr},
    {S::TipTime, "TipTime", T::Integer, u"45", u"45", "TxtTipInterval", "FrameGeneral", S::UseLexTip, u"Sekunden nach dem Start", nullptr},
    {S::GameTipTime, "GameTipTime", T::Integer, u"45", u"45", "TxtGameTipInterval", "Frame3", S::UseGameLexTip, u"Sekunden nach dem Start", nullptr},
    {S::VokalTipTime, "VokalTipTime", T::Integer, u"60", nullptr, "TxtVokalTipInterval", "Frame5", S::VokalTipEnabled, u"Sekunden nach dem Start", nullptr},
    {S::AutoCloseTipTime, "AutoCloseTipTime", T::Integer, u"20", u"20", "TxtAutoCloseInterval", "FrameGeneral", S::UseLexTip, u"Sekunden nach dem Start", u"Zeit, nach der sich der Tipp schließt"},
    {S::UseUndo, "UseUndo", T::Box, u"1", nullptr, "ChkUseUndo", "FrameGeneral", S::UseUndo, u"Aktionen rückgängig machen", nullptr},
    {S::UseBackup, "UseBackup", T::Box, u"0", nullptr, "ChkUseBackup", "Frame4", S::UseBackup, u"Jede Aktion automatisch speichern", nullptr},
    {S::HideTaskbar, "HideTaskbar", T::Box, u"0", nullptr, "ChkHideTaskbar", "FrameGeneral", S::HideTaskbar, u"Taskleiste verbergen", nullptr},
    {S::GameShowWordHint, "GameShowWordHint", T::Box, u"1", nullptr, "ChkGameShowWordHint", "Frame3", S::GameShowWordHint, u"Fertiges Wort als Tipp kurz zeigen", nullptr},
    {S::GameShowWordHintTime, "GameShowWordHintTime", T::Integer, u"60", u"60", "txtGameShowWordHintInterval", "Frame3", S::GameShowWordHint, u"Sekunden nach dem Start", nullptr},
    {S::PrintInColor, "PrintInColor", T::Box, u"0", nullptr, "ChkPrintInColor", "FramePrint", S::PrintInColor, u"Druck in Farbe", nullptr},
    {S::PrintHighQuality, "PrintHighQuality", T::Box, u"0", nullptr, "ChkPrintHighQuality", "FramePrint", S::PrintHighQuality, u"Druck in höchster Qualität", nullptr},
    {S::ReTypeAfterGame, "ReTypeAfterGame", T::Box, u"0", nullptr, "ChkReTypeAfterGame", "Frame3", S::ReTypeAfterGame, u"Abschreibmodus als Abschluss einer Spielrunde", nullptr},
    {S::ShowWelcomeMsg, "ShowWelcomeMsg", T::Box, u"1", nullptr, "ChkWelcomeMsgEnabled", "FrameGeneral", S::ShowWelcomeMsg, u"Mitteilung zur Begrüßung zeigen", nullptr},
    {S::TrimEnteredWords, "TrimEnteredWords", T::Box, u"1", nullptr, "ChkTrimEnteredWords", "FrameWortkontrolle", S::TrimEnteredWords, u"versehentliche Leerstellen vor oder nach dem Wort bei der Eingabe ignorieren", nullptr},
    {S::ScrollerLeftDownPos, "ScrollerLeftDownPos", T::Option, u"False", nullptr, "Option1(0)", "FramePlace", S::ScrollerLeftDownPos, u"links unten über dem Schreibfenster", nullptr},
    {S::ScrollerRndPos, "ScrollerRndPos", T::Option, u"True", nullptr, "Option1(1)", "FramePlace", S::ScrollerRndPos, u"nach Zufall irgendwo", nullptr},
    {S::ScrollerMiddlePos, "ScrollerMiddlePos", T::Option, u"False", nullptr, "Option1(2)", "FramePlace", S::ScrollerMiddlePos, u"Mitte", nullptr},
    {S::ScrollerLeftUpPos, "ScrollerLeftUpPos", T::Option, u"False", nullptr, "Option1(3)", "FramePlace", S::ScrollerLeftUpPos, u"links oben", nullptr},
    {S::VerifyWinTime, "VerifyWinTime", T::Integer, u"1", u"1", "Text3", "FrameWortkontrolle", S::VerifyWinTime, u"Zeit für Bestätigung", nullptr},
    {S::CaseCheck, "CaseCheck", T::Box, u"1", nullptr, "ChkUseCase", "FrameWortkontrolle", S::CaseCheck, u"Groß- und Kleinschreibung", nullptr},
    {S::UseSounds, "UseSounds", T::Box, u"1", nullptr, "chkUSeSounds", "FrameWortkontrolle", S::UseSounds, u"Töne", nullptr},
    {S::UseSoundsInMemory, "UseSoundsInMemory", T::Box, u"1", nullptr, "ChkSoundsInMemory", "Frame2", S::UseSoundsInMemory, u"Töne", nullptr},
    {S::LCaseOnShuffle, "LCaseOnShuffle", T::Box, u"1", nullptr, "ChkLCaseOnShuffle", "FrameGeneral", S::LCaseOnShuffle, u"Kleinschreibung bei \"Wortel vertauschen\"", nullptr},
    {S::GameTimeOut, "GameTimeOut", T::Integer, u"7", u"7", "Text1", "Frame3", S::GameTimeOut, u"Zeitbegrenzung (Minuten)", nullptr},
    {S::GamePrepareTimeOut, "GamePrepareTimeOut", T::AnyNumber, u"7", u"7", "Text10", "Frame3", S::GamePrepareTimeOut, u"Stufe 1: Zeitbegrenzung zum Wortbau in der Vorbereitungsphase (Minuten)", nullptr},
    {S::GameSoundOnTimeOut, "GameSoundOnTimeOut", T::Box, u"1", nullptr, "ChkSoundOnTimeOut", "Frame3", S::GameSoundOnTimeOut, u"Ton, wenn Spielzeit abgelaufen", nullptr},
    {S::MoveableInFilter, "MoveableInFilter", T::Box, u"1", nullptr, "ChkMoveable", "FrameGeneral", S::MoveableInFilter, u"Morphem bleibt verschiebbar auch bei aktivierter Präfix-, Wortel- oder Suffix-Taste", nullptr},
    {S::ConfirmBeforeErase, "ConfirmBeforeErase", T::Box, u"1", nullptr, "ChkConfErase", "FrameGeneral", S::ConfirmBeforeErase, u"Entfernen bestätigen", nullptr},
    {S::LongPressIsRight, "LongPressIsRight", T::Box, u"0", nullptr, "ChkLongPress", "FrameTouch", S::LongPressIsRight, u"Langes Drücken = Rechtsklick", u"Auch für die Maus und Tafeln, die sich wie eine Maus melden"},
    {S::FillAffix, "FillAffix", T::Box, u"1", nullptr, "ChkAffixFill", "FrameBoard", S::FillAffix, u"Affix-Kopien auffüllen", nullptr},
    {S::OpenWLXWithStoredLex, "OpenWLXWithStoredLex", T::Box, u"1", nullptr, "chkOpenWithLex", "Frame4", S::OpenWLXWithStoredLex, u"Beim Laden einer Sitzung automatisch das zugehörige Wörterbuch laden", nullptr},
    {S::UseCaseOnPseudo, "UseCaseOnPseudo", T::Box, u"1", nullptr, "ChkUseCaseOnPseudo", "FrameAbschreiben", S::UseCaseOnPseudo, u"Unsinnswörter abschreiben: Groß- und Kleinschreibung kontrollieren", nullptr},
    {S::InitCapPseudoSuffixes, "InitCapPseudoSuffixes", T::Box, u"1", nullptr, "ChkInitCapPseudoSuffixes", "FrameAbschreiben", S::InitCapPseudoSuffixes, u"Unsinnswörter: Großschreibung des Anfangsbuchstabens bei den Suffixen: ung heit keit schaft nis tum erei ", nullptr},
    {S::NoOverlapOnStart, "NoOverlapOnStart", T::Box, u"1", nullptr, "ChkNoOverlapOnStart", "FrameBoard", S::NoOverlapOnStart, u"Wortel ohne Überdeckung platzieren", nullptr},
    {S::NumAffixToFill, "NumAffixToFill", T::Integer, u"5", u"5", "Text4", "FrameBoard", S::FillAffix, u"Anzahl", nullptr},
    {S::AddToSuffixPosition, "AddToSuffixPosition", T::SignedInteger, u"0", u"0", "Text12", "FrameBoard", S::AddToSuffixPosition, u"Suffix: Start Pos. vert. ", u"0 bedeutet \"Standard\""},
    {S::MaxTriesToPlace, "MaxTriesToPlace", T::Integer, u"1", u"1000", "Text15", "FrameBoard", S::MaxTriesToPlace, u"Alle Morpheme Ohne Überdeckung platzieren: Max. Versuche ", nullptr},
    {S::SaveCopyWithLF, "SaveCopyWithLF", T::Option, u"True", nullptr, "OptExport(0)", "FrameSave", S::SaveCopyWithLF, u"Wörter untereinander", nullptr},
    {S::SaveCopyWithCol, "SaveCopyWithCol", T::Option, u"False", nullptr, "OptExport(1)", "FrameSave", S::SaveCopyWithCol, u"Wörter nebeneinander", nullptr},
    {S::SaveCopyWithColBl, "SaveCopyWithColBl", T::Option, u"False", nullptr, "OptExport(2)", "FrameSave", S::SaveCopyWithColBl, u"Spalten mit Blöcken", nullptr},
    {S::SaveNoColumns, "SaveNoColumns", T::Integer, u"3", u"3", "Text5", "FrameSave", S::SaveCopyWithCol, u"Spalten", nullptr},
    {S::SaveNoBlocks, "SaveNoBlocks", T::Integer, u"3", u"3", "Text6", "FrameSave", S::SaveCopyWithColBl, u"Blöcke", nullptr},
    {S::GameDifficult1, "GameDifficult1", T::Option, u"True", nullptr, "Option2(0)", "FrameLevel", S::GameDifficult1, u"1", nullptr},
    {S::GameDifficult2, "GameDifficult2", T::Option, u"False", nullptr, "Option2(1)", "FrameLevel", S::GameDifficult1, u"2", nullptr},
    {S::GameDifficult3, "GameDifficult3", T::Option, u"False", nullptr, "Option2(2)", "FrameLevel", S::GameDifficult1, u"3", nullptr},
    {S::ColumnsOnLineUp, "ColumnsOnLineUp", T::Integer, u"5", u"5", "Text13", "Frame1", S::ColumnsOnLineUp, u"Anzahl Spalten", nullptr},
    {S::StartPosTopOnLineUp, "StartPosTopOnLineUp", T::Integer, u"100", u"100", "Text16", "Frame1", S::StartPosTopOnLineUp, u"Start Pos. vert.", nullptr},
    {S::HorizSpaceOnLineUp, "HorizSpaceOnLineUp", T::Integer, u"100", u"100", "Text14", "Frame1", S::HorizSpaceOnLineUp, u"Abstand horizontal", nullptr},
    {S::VertSpaceOnLineUp, "VertSpaceOnLineUp", T::Integer, u"100", u"100", "Text17", "Frame1", S::VertSpaceOnLineUp, u"Abstand vertikal", nullptr},
    {S::KernlingNumRandomWords, "KernlingNumRandomWords", T::Integer, u"20", u"20", "Text8", "Frame2", S::KernlingNumRandomWords, u"Anzahl der zufällig ausgewählten Wörter, die aus aktuell sichtbaren Morphemen bestehen", nullptr, "Settings", ofKernling},
    {S::KernlingNumPseudoWords, "KernlingNumPseudoWords", T::Integer, u"20", u"20", "Text11", "Frame2", S::KernlingNumPseudoWords, u"Anzahl der zufällig ausgewählten Unsinnswörter, die aus aktuell sichtbaren Morphemen bestehen", nullptr, "Settings", ofKernling},
    {S::KernlingNumScrambleWords, "KernlingNumScrambleWords", T::Integer, u"20", u"20", "Text1", "Frame2", S::KernlingNumScrambleWords, u"Morphemscramble: Anzahl Wörter", nullptr, "Settings", ofKernling},
    {S::KernlingNumLetterMixWords, "KernlingNumLetterMixWords", T::Integer, u"20", u"20", "Text2", "Frame2", S::KernlingNumLetterMixWords, u"Buchstabenmix: Anzahl Wörter", nullptr, "Settings", ofKernling},
    {S::KernlingGameTime, "KernlingGameTime", T::Integer, u"40", u"40", "Text12", "Frame1", S::KernlingGameTime, u"Zeitbegrenzung (Sekunden)", nullptr, "Settings", ofKernling},
    {S::KernlingShowLists, "KernlingShowLists", T::Box, u"0", nullptr, "Check6", "Frame1", S::KernlingShowLists, u"Ergebnis-Listen anzeigen", nullptr, "Settings", ofKernling},
    {S::KernlingShowNoDup, "KernlingShowNoDup", T::Box, u"1", nullptr, "Check1", "Frame1", S::KernlingShowNoDup, u"doppelte Wortele nicht in den Ergebnis-Listen anzeigen", nullptr, "Settings", ofKernling},
    {S::KernlingShowFalse, "KernlingShowFalse", T::Box, u"0", nullptr, "Check2", "Frame1", S::KernlingShowFalse, u"Falsche Buchstabenauswahl auch anzeigen", nullptr, "Settings", ofKernling},
    {S::KernlingUseSounds, "KernlingUseSounds", T::Box, u"1", nullptr, "Check5", "Frame1", S::KernlingUseSounds, u"Töne", nullptr, "Settings", ofKernling},
    {S::KernlingShowTooltip, "KernlingShowTooltip", T::Box, u"1", nullptr, "Check7", "Frame1", S::KernlingShowTooltip, u"Info-Fahne zeigen", nullptr, "Settings", ofKernling},
    {S::ProgramSize, "ProgramSize", T::Size, u"automatisch", u"automatisch", "cboSize", "FrameView", S::ProgramSize, u"Größe", u"Größe von Schrift, Bausteinen und Fenstern (Strg++ und Strg+-)"},
}};
// clang-format on

constexpr std::array<OptionGroup, 3> groups{{
    {S::ScrollerLeftDownPos, S::ScrollerLeftUpPos},
    {S::SaveCopyWithLF, S::SaveCopyWithColBl},
    {S::GameDifficult1, S::GameDifficult3},
}};

constexpr bool rowsFollowTheEnumeration()
{
    for (std::size_t row = 0; row < table.size(); ++row)
        if (table[row].id != static_cast<Setting>(row))
            return false;
    return true;
}
static_assert(rowsFollowTheEnumeration(), "each setting's row stands at its own number");

} // namespace

const std::array<SettingRow, static_cast<std::size_t>(Setting::Count)> &settingsTable() { return table; }

const SettingRow &settingRow(Setting id) { return table[static_cast<std::size_t>(id)]; }

const OptionGroup *optionGroup(Setting id)
{
    for (const OptionGroup &group : groups)
        if (id >= group.first && id <= group.last)
            return &group;
    return nullptr;
}
