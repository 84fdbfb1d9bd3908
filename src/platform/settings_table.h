// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

/// The settings that an options window edits, in the order of their table.
enum class Setting : int {
    NumWortel,
    WortelFile,
    BackgroundPicture,
    ScrollerSpeed,
    NumReTypeWords,
    NumPseudoReTypeWords,
    ScrollerCanPan,
    SoundOnAllReTyped,
    SoundOnActions,
    ShowCorrectListAfterGame,
    ShowCorrectListAfterReType,
    UseLexTip,
    UseGameLexTip,
    VokalTipEnabled,
    TipTime,
    GameTipTime,
    VokalTipTime,
    AutoCloseTipTime,
    UseUndo,
    UseBackup,
    HideTaskbar,
    GameShowWordHint,
    GameShowWordHintTime,
    PrintInColor,
    PrintHighQuality,
    ReTypeAfterGame,
    ShowWelcomeMsg,
    TrimEnteredWords,
    ScrollerLeftDownPos,
    ScrollerRndPos,
    ScrollerMiddlePos,
    ScrollerLeftUpPos,
    VerifyWinTime,
    CaseCheck,
    UseSounds,
    UseSoundsInMemory,
    LCaseOnShuffle,
    GameTimeOut,
    GamePrepareTimeOut,
    GameSoundOnTimeOut,
    MoveableInFilter,
    ConfirmBeforeErase,
    LongPressIsRight,
    FillAffix,
    OpenWLXWithStoredLex,
    UseCaseOnPseudo,
    InitCapPseudoSuffixes,
    NoOverlapOnStart,
    NumAffixToFill,
    AddToSuffixPosition,
    MaxTriesToPlace,
    SaveCopyWithLF,
    SaveCopyWithCol,
    SaveCopyWithColBl,
    SaveNoColumns,
    SaveNoBlocks,
    GameDifficult1,
    GameDifficult2,
    GameDifficult3,
    ColumnsOnLineUp,
    StartPosTopOnLineUp,
    HorizSpaceOnLineUp,
    VertSpaceOnLineUp,
    KernlingNumRandomWords,
    KernlingNumPseudoWords,
    KernlingNumScrambleWords,
    KernlingNumLetterMixWords,
    KernlingGameTime,
    KernlingShowLists,
    KernlingShowNoDup,
    KernlingShowFalse,
    KernlingUseSounds,
    KernlingShowTooltip,
    ProgramSize,
    Count
};

/// Who edits a setting: the options window of the program, or that of a game.
enum class SettingsWindow { frmOptions, frmKernlingOptions };

/// A size is a text of `program_size`, chosen from its list.
enum class SettingType { Integer, SignedInteger, AnyNumber, Path, Box, Option, Size };

/// One row a setting: how it is stored, what it is at first, what a blank field becomes, and which control
/// edits it, with its place on the pages of the options window. A new setting is a new row and needs nothing
/// else to be shown, edited, repaired and kept.
struct SettingRow
{
    Setting id;
    const char *key;
    SettingType type;
    const char16_t *fallback; ///< "%APP%" at its start stands for AppFolder
    const char16_t *repair;   ///< nullptr: none
    const char *control;
    const char *frame; ///< the frame that holds the control
    Setting beside;    ///< the setting on whose line the control stands; its own id: a line of its own
    const char16_t *caption;
    const char16_t *tip; ///< nullptr: none
    const char *section = "Settings";
    SettingsWindow window = SettingsWindow::frmOptions;
};

/// Settings of which one is on: the option buttons of one frame. `first` to `last` in the order of the table.
struct OptionGroup
{
    Setting first;
    Setting last;
};

const std::array<SettingRow, static_cast<std::size_t>(Setting::Count)> &settingsTable();
const SettingRow &settingRow(Setting id);
/// The group of an option, or nullptr for a setting that is none.
const OptionGroup *optionGroup(Setting id);

constexpr bool isTextSetting(SettingType type)
{
    return type != SettingType::Box && type != SettingType::Option;
}
