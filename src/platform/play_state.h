// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstdint>

/// The two groups of stem vowels.
enum class Vowels : std::uint8_t { None, Short, Long };

/// Where the words to retype come from.
enum class WordSource : std::uint8_t {
    UserWords,
    BoardWords,
    PseudoWords,
    ChosenWords,
    ShortVowels,
    LongVowels
};

/// What is played: one value, not a heap of flags. Free, the word game (level, phase, vowels) or retyping
/// (the source of its words). It belongs to the main window and is read by many; the mode that is entered or
/// left changes it, and `changed` tells it once. The names of the questions are the system's own.
class PlayState : public QObject
{
    Q_OBJECT

public:
    enum class Mode : std::uint8_t { Free, WordGame, Retyping };
    enum class Phase : std::uint8_t { Preparing, Playing };

    // The word game
    bool GameActive() const { return now_.mode == Mode::WordGame; }
    /// 1 to 3: the level that is chosen or played.
    int GameLevel() const { return level_; }
    Phase phase() const { return now_.phase; }
    bool GameShortVowels() const { return GameActive() && now_.vowels == Vowels::Short; }
    bool GameLongVowels() const { return GameActive() && now_.vowels == Vowels::Long; }

    // Retype mode, from the moment on when its words are prepared
    bool RetypeActive() const { return now_.mode == Mode::Retyping; }
    /// The stems of one vowel group come from the word list, too.
    bool RetypeUserWords() const
    {
        return retypes(WordSource::UserWords) || retypes(WordSource::ShortVowels) ||
               retypes(WordSource::LongVowels);
    }
    bool RetypeRandomWords() const { return retypes(WordSource::BoardWords); }
    bool RetypePseudoWords() const { return retypes(WordSource::PseudoWords); }
    bool RetypeChosenWords() const { return retypes(WordSource::ChosenWords); }

    // The vowel check, which word check, retype mode and the vowel game share
    Vowels checkedVowels() const { return checked_; }
    bool KurzVokalMode() const { return checked_ == Vowels::Short; }
    bool LangVokalMode() const { return checked_ == Vowels::Long; }

    void setLevel(int level);
    void setCheckedVowels(Vowels vowels);
    void startGame(Phase phase, Vowels vowels);
    /// The words have been built on the board, and are entered now.
    void endPreparation();
    void startRetyping(WordSource source);
    /// No game and no retyping. The vowel check goes with them.
    void stop();

signals:
    void changed();

private:
    struct Now
    {
        Mode mode = Mode::Free;
        Phase phase = Phase::Preparing;
        Vowels vowels = Vowels::None;
        WordSource source = WordSource::UserWords;
        bool operator==(const Now &) const = default;
    };

    bool retypes(WordSource source) const { return RetypeActive() && now_.source == source; }
    void become(const Now &now, Vowels checked, int level);

    Now now_;
    Vowels checked_ = Vowels::None;
    int level_ = 1;
};
