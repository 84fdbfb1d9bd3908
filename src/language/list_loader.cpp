// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/list_loader.h"

#include "platform/boxes.h"
#include "platform/fault_words.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/play_state.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/rnd.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/word_lists.h"

#include <QSet>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The lists of the start in the order in which their files are tested.
struct StartList
{
    QString WordLists::*path;
    WordStore WordLists::*store;
    bool removesDuplicates;
};

constexpr std::array<StartList, 4> startLists{{
    {&WordLists::CurrentWortelFile, &WordLists::WortelList, true},
    {&WordLists::CurrentLexiconFile, &WordLists::LexiconList, false},
    {&WordLists::PrefixFile, &WordLists::PrefixList, true},
    {&WordLists::SuffixFile, &WordLists::SuffixList, true},
}};

QString missing(const QString &path) { return u"Datei "_s + path + u" fehlt"_s; }

} // namespace

QString missingListFile(const QString &path, const char *procedure, int line)
{
    return missing(path) + u"\n\nBreche ab...\n\nSub: "_s + QLatin1String(procedure) + u" Line: "_s +
           QString::number(line);
}

QStringList readListOrTell(const Ground &ground, const QString &path, bool keepBlank)
{
    try {
        return readListFile(path, keepBlank);
    } catch (const RuntimeError &error) {
        const bool isTooLarge = error.number() == RuntimeError::OutOfMemory;
        ground.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                              u"Datei "_s + path + u" kann nicht gelesen werden"_s +
                                  (isTooLarge ? u"\n\n"_s + faultWords(error) : QString()));
        throw;
    }
}

/// Tells that the loader is at work while one of these lives.
class ListLoader::Busy
{
public:
    explicit Busy(ListLoader &loader)
        : loader_(loader)
    {
        emit loader_.busy(true);
    }
    ~Busy() { emit loader_.busy(false); }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

private:
    ListLoader &loader_;
};

ListLoader::ListLoader(Ground &ground, WordLists &lists, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , lists_(lists)
{}

QString ListLoader::facitPath(const QString &path)
{
    QString result = path;
    return result.replace(u"\\text"_s, u"\\facit"_s);
}

QString ListLoader::dictionaryOf(const QString &path)
{
    return RTrimText(facitPath(path), u".txt"_s) + u".lex"_s;
}

std::optional<QString> ListLoader::missingOf(const QString &path)
{
    if (!IsTextFile(path))
        return path;
    const QString dictionary = dictionaryOf(path);
    return IsTextFile(dictionary) ? std::nullopt : std::optional(dictionary);
}

std::optional<QString> ListLoader::loadAtStart()
{
    lists_.CurrentWortelFile = ground_.options.text(Setting::WortelFile);
    lists_.PrefixFile = ground_.AppFolder + u"affix\\prefix.afx"_s;
    lists_.SuffixFile = ground_.AppFolder + u"affix\\suffix.afx"_s;
    lists_.CurrentLexiconFile = dictionaryOf(lists_.CurrentWortelFile);
    if (loadedAtStart_)
        return std::nullopt;
    Procedure step{ground_.log, "ProgInit", "frmMain", Procedure::Silent};
    const Busy busyNow(*this);
    for (const StartList &row : startLists) {
        const QString &path = lists_.*row.path;
        if (!IsTextFile(path)) {
            return missingListFile(path, "ProgInit", __LINE__);
        }
        WordStore &store = lists_.*row.store;
        emit loading(&store);
        ground_.rnd.Randomize();
        step([&] { store.clear(); });
        step([&] { append(store, path); });
        if (row.removesDuplicates)
            step([&] { store.removeNeighbouringDuplicates(); });
    }
    loadedAtStart_ = true;
    return std::nullopt;
}

void ListLoader::takeAsLoaded()
{
    loadedAtStart_ = true;
    langVokalFile_ = vowelFile(Vowels::Long);
    kurzVokalFile_ = vowelFile(Vowels::Short);
}

void ListLoader::FillWortelList(QString &path)
{
    Procedure step{ground_.log, "FillWortelList", "frmMain"};
    lists_.CurrentWortelFile = path;
    if (!IsTextFile(path))
        return;
    const Busy busyNow(*this);
    step([&] { append(lists_.WortelList, path); });
    step([&] { lists_.WortelList.removeNeighbouringDuplicates(); });
    lists_.CurrentLexiconFile = dictionaryOf(path);
    path = facitPath(path);
    step([&] { Fill_Lexicon(lists_.CurrentLexiconFile); });
}

void ListLoader::Fill_Lexicon(const QString &path)
{
    Procedure step{ground_.log, "Fill_Lexicon", "frmMain"};
    ground_.rnd.Randomize();
    if (!IsTextFile(path)) {
        step([&] { ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle, missing(path)); });
        return;
    }
    const Busy busyNow(*this);
    emit loading(&lists_.LexiconList);
    step([&] { append(lists_.LexiconList, path); });
    step([&] { lists_.LexiconList.removeNeighbouringDuplicates(); });
}

void ListLoader::FillKurzLanglist()
{
    Procedure step{ground_.log, "FillKurzLanglist", "frmMain"};
    langVokalFile_ = vowelFile(Vowels::Long);
    kurzVokalFile_ = vowelFile(Vowels::Short);
    step([&] { fillVowelList(lists_.langvokalList, langVokalFile_, false, __LINE__); });
    // Blank lines of this file become empty entries: required, odd as it is.
    step([&] { fillVowelList(lists_.kurzvokalList, kurzVokalFile_, true, __LINE__); });
}

QString ListLoader::vowelFile(Vowels group) const
{
    return ground_.AppFolder + (group == Vowels::Long ? u"text kurz lang\\langer Stammvokal.Txt"_s
                                                      : u"text kurz lang\\kurzer Stammvokal.Txt"_s);
}

QStringList ListLoader::askForStemLists()
{
    return ground_.fileDialogs.openFiles(u"Wortel laden (Multi)"_s, ground_.AppFolder + u"text"_s,
                                         u"Text Dateien (*.txt)|*.txt"_s, true);
}

void ListLoader::FillChooseWortelList(WordStore &store, const QString &path)
{
    Procedure step{ground_.log, "FillChooseWortelList", "frmChooseWortel"};
    if (!IsTextFile(path))
        return;
    const Busy busyNow(*this);
    step([&] { append(store, path); });
    step([&] { store.removeNeighbouringDuplicates(); });
}

QStringList ListLoader::vowelStems(Vowels group)
{
    Procedure step{ground_.log, "vowelStems", "frmChooseWortel", Procedure::Silent};
    const QString path = vowelFile(group);
    QStringList stems;
    step([&] {
        // The message names the procedure of the start, as it always has.
        if (IsTextFile(path))
            stems = readListOrTell(ground_, path);
        else
            ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                                   missingListFile(path, "ProgInit", __LINE__));
    });
    return stems;
}

void ListLoader::append(WordStore &store, const QString &path)
{
    store.addAll(readListOrTell(ground_, path));
}

void ListLoader::fillVowelList(WordStore &store, const QString &path, bool keepBlank, int line)
{
    if (!IsTextFile(path)) {
        ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                               missingListFile(path, "FillKurzLanglist", line));
        return;
    }
    QSet<QString> seen;
    QStringList fresh;
    for (const QString &word : readListOrTell(ground_, path, keepBlank)) {
        const QString folded = UCase(word);
        if (!word.isEmpty() && (seen.contains(folded) || store.contains(word)))
            continue;
        seen.insert(folded);
        fresh.append(word);
    }
    store.addAll(fresh);
}
