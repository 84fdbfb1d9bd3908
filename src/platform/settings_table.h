// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

/// The settings of section `Settings`, in the order of their table.
enum class Setting : std::size_t {
    NumWortel, WortelFile, BackgroundPicture, ScrollerSpeed, NumReTypeWords, NumPseudoReTypeWords, ScrollerCanPan,
    SoundOnAllReTyped, SoundOnActions, ShowCorrectListAfterGame, ShowCorrectListAfterReType, UseLexTip, UseGameLexTip,
    VokalTipEnabled, TipTime, GameTipTime, VokalTipTime, AutoCloseTipTime, UseUndo, UseBackup, HideTaskbar,
    GameShowWordHint, GameShowWordHintTime, PrintInColor, PrintHighQuality, ReTypeAfterGame, ShowWelcomeMsg,
    TrimEnteredWords, ScrollerLeftDownPos, ScrollerRndPos, ScrollerMiddlePos, ScrollerLeftUpPos, VerifyWinTime, CaseCheck,
    UseSounds, UseSoundsInMemory, LCaseOnShuffle, GameTimeOut, GamePrepareTimeOut, GameSoundOnTimeOut, MoveableInFilter,
    ConfirmBeforeErase, FillAffix, OpenWLXWithStoredLex, UseCaseOnPseudo, InitCapPseudoSuffixes, NoOverlapOnStart,
    NumAffixToFill, AddToSuffixPosition, MaxTriesToPlace, SaveCopyWithLF, SaveCopyWithCol, SaveCopyWithColBl, SaveNoColumns,
    SaveNoBlocks, GameDifficult1, GameDifficult2, GameDifficult3, ColumnsOnLineUp, StartPosTopOnLineUp, HorizSpaceOnLineUp,
    VertSpaceOnLineUp,
    Count
};

enum class SettingType { Integer, SignedInteger, AnyNumber, Path, Box, Option };

/// One row a setting: how it is stored, what it is at first, what a blank field becomes, and which control on which page edits it.
struct SettingRow
{
    Setting id;
    const char *key;
    SettingType type;
    const char16_t *fallback; ///< "%APP%" at its start stands for AppFolder
    const char16_t *repair;   ///< nullptr: none
    const char *control;
    const char16_t *caption;
};

const std::array<SettingRow, static_cast<std::size_t>(Setting::Count)> &settingsTable();
const SettingRow &settingRow(Setting id);
