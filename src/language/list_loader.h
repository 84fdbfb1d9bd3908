// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <cstdint>
#include <optional>

class WordStore;
enum class Vowels : std::uint8_t;
struct Ground;
struct WordLists;

/// What is told of a list file that is missing where nothing goes on without it.
QString missingListFile(const QString &path, const char *procedure, int line);
/// The entries of a list file, as `readListFile` gives them. A file that cannot be read is told in a warning
/// box, for it would look like an empty one, and its RuntimeError is passed on.
QStringList readListOrTell(const Ground &ground, const QString &path, bool keepBlank = false);

/// Fills the word stores from the list files that lie beside the program: the four lists of the start, a stem
/// list with the dictionary that goes with it, a dictionary alone, the two vowel lists. Files are never
/// written. What a window has to do meanwhile (hourglass, hide the list) is told by signals.
class ListLoader : public QObject
{
    Q_OBJECT

public:
    ListLoader(Ground &ground, WordLists &lists, QObject *parent = nullptr);

    /// Names the four files (the stem list by the options, the affixes below `affix\`, the dictionary of the
    /// stem list) and fills `WortelList`, `LexiconList`, `PrefixList` and `SuffixList`: once, a second call
    /// leaves the lists alone, unless the first one failed. The dictionary keeps its neighbouring duplicates
    /// here, and only here. If a file is missing the load stops, and the message with which the program has
    /// to end is returned.
    std::optional<QString> loadAtStart();

    /// The lists were filled by somebody else, as this loader would have done at a start.
    void takeAsLoaded();

    /// Appends the stem list `path` to `WortelList` and its dictionary to `LexiconList`. `path` comes back
    /// with `\text` replaced by
    /// `\facit`. A missing stem list changes nothing but `CurrentWortelFile` and says nothing.
    void FillWortelList(QString &path);
    /// Appends the dictionary `path` to `LexiconList`; a missing one is told in a warning box.
    void Fill_Lexicon(const QString &path);
    /// Appends both vowel lists, without words that are there already. A missing file is told in a warning
    /// box, and the other is still read.
    void FillKurzLanglist();
    /// Asks for one or several stem lists (stored paths); none if nobody chose.
    QStringList askForStemLists();
    /// Appends the stem list `path` to `store`, a list of the word chooser, and leaves the game's own lists
    /// alone. A missing file says nothing.
    void FillChooseWortelList(WordStore &store, const QString &path);
    /// The stems of one vowel file, as it stands; a missing file is told as above and has none.
    QStringList vowelStems(Vowels group);

    QString KurzVokalFile() const { return kurzVokalFile_; }
    QString LangVokalFile() const { return langVokalFile_; }

    /// Every `\text` in a path turned to `\facit`, upper and lower case told apart: deliberately also one
    /// that is a part of a longer folder's name.
    static QString facitPath(const QString &path);
    /// The dictionary that goes with a stem list: `facitPath` without a trailing ".txt" (any case), with
    /// ".lex".
    static QString dictionaryOf(const QString &path);
    /// The stem list `path` or its dictionary, whichever is missing; nothing if both are there.
    static std::optional<QString> missingOf(const QString &path);

signals:
    /// The pointer is to be the hourglass (True), or what it was before. Always in pairs, which may be
    /// nested.
    void busy(bool on);
    /// The list control that shows `store`, if there is one, is to be hidden. It stays hidden.
    void loading(WordStore *store);

private:
    class Busy;

    QString vowelFile(Vowels group) const;
    void append(WordStore &store, const QString &path);
    void fillVowelList(WordStore &store, const QString &path, bool keepBlank, int line);

    Ground &ground_;
    WordLists &lists_;
    QString kurzVokalFile_;
    QString langVokalFile_;
    bool loadedAtStart_ = false;
};
