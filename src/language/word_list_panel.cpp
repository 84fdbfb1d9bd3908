// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_list_panel.h"

#include "board/hand/command_router.h"
#include "language/dictionary_panel.h"
#include "language/word_file.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/play_state.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/word_lists.h"
#include "widgets/gradient.h"
#include "widgets/list_stand.h"
#include "widgets/main_controls.h"
#include "widgets/opening_press.h"
#include "widgets/store_list.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;

WordListPanel::WordListPanel(Ground &ground, const MainControls &controls, WordLists &lists,
                             const PlayState &play, const WordTests &tests, DictionaryPanel &dictionary,
                             QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , play_(play)
    , tests_(tests)
    , dictionary_(dictionary)
    , mnuTest_(makeFilledMenu())
    , mnuTest2_(makeEmptyMenu())
{}

void WordListPanel::registerCommands(CommandRouter &router)
{
    router.onMenu(501, [this] { Show_Result(); });
    router.onMenu(502, [this] { CorrectWordsToClip(); });
    router.onMenu(503, [this] { Save_Result(); });
    router.onMenu(506, [this] { editByMenu(); });
}

void WordListPanel::addEntry(QMenu *menu, const char16_t *name, const char16_t *caption,
                             void (WordListPanel::*act)())
{
    QAction *action = menu->addAction(QString::fromUtf16(caption));
    action->setObjectName(QString::fromUtf16(name));
    connect(action, &QAction::triggered, this,
            throughGate(ground_.gate, Gate::Way::Play, [this, act](bool) { (this->*act)(); }));
}

QMenu *WordListPanel::makeFilledMenu()
{
    auto *menu = new QMenu(controls_.form);
    menu->setObjectName(u"mnuTest"_s);
    addEntry(menu, u"mnuEditWord", u"Wort bearbeiten", &WordListPanel::mnuEditWord);
    menu->addSeparator();
    addEntry(menu, u"mnuDeleteWord", u"Wort entfernen", &WordListPanel::mnuDeleteWord);
    addEntry(menu, u"mnuDeleteAllWords", u"Alle Wörter entfernen", &WordListPanel::mnuDeleteAllWords);
    menu->addSeparator();
    addEntry(menu, u"mnuMoveUp", u"Wort darüber markieren", &WordListPanel::mnuMoveUp);
    addEntry(menu, u"mnuMoveDown", u"Wort darunter markieren", &WordListPanel::mnuMoveDown);
    menu->addSeparator();
    addEntry(menu, u"mnuAddWord", u"Wort hinzufügen", &WordListPanel::mnuAddWord);
    menu->addSeparator();
    addEntry(menu, u"mnuCloseTheList", u"Schließen", &WordListPanel::Show_Result);
    return menu;
}

QMenu *WordListPanel::makeEmptyMenu()
{
    auto *menu = new QMenu(controls_.form);
    menu->setObjectName(u"mnuTest2"_s);
    addEntry(menu, u"mnuAddWord2", u"Wort hinzufügen", &WordListPanel::mnuAddWord);
    return menu;
}

void WordListPanel::CorrectWordList_MouseDown(const QPoint &position)
{
    QMenu *menu = lists_.CorrectWordList.isEmpty() ? mnuTest2_ : mnuTest_;
    menu->popup(OpeningPress::placeFor(*menu, controls_.CorrectWordList->mapToGlobal(position)));
}

void WordListPanel::Show_Result()
{
    Procedure step{ground_.log, "Show_Result", "frmMain"};
    StoreList *list = controls_.CorrectWordList;
    step([&] { standOnBand(controls_, list); });
    list->setVisible(list->isHidden());
    if (!list->isHidden() && lists_.CorrectWordList.isEmpty())
        ground_.notes.tell(note::wordListEmpty);
    if (dictionary_.isOpen())
        step([&] { dictionary_.toggle(); });
}

void WordListPanel::placeOpen()
{
    if (!controls_.CorrectWordList->isHidden())
        standOnBand(controls_, controls_.CorrectWordList);
}

void WordListPanel::editByMenu()
{
    Procedure step{ground_.log, "mnuEditWordList", "frmMain", Procedure::Silent};
    StoreList *list = controls_.CorrectWordList;
    step([&] { standOnBand(controls_, list); });
    step([&] { list->move(list->x(), std::max(0, controls_.Picture1->y() - list->height())); });
    list->setVisible(list->isHidden());
    step([&] { CorrectWordList_MouseDown(list->rect().center()); });
}

void WordListPanel::Save_Result()
{
    Procedure step{ground_.log, "Save_Result", "frmMain"};
    if (lists_.CorrectWordList.isEmpty()) {
        step([&] {
            ground_.boxes.ShowInfoBox(u"Es gibt noch keine richtigen Wörter zum Speichern !"_s, BoxSign::Info,
                                      product::name);
        });
        return;
    }
    saveWords(ground_, step, lists_.CorrectWordList.rows(),
              {u"Richtige Wörter Speichern"_s, u"Wortel - Fehler"_s,
               u"Die richtigen Wörter konnten nicht in die Datei geschrieben werden"_s});
}

void WordListPanel::CorrectWordsToClip()
{
    Procedure step{ground_.log, "CorrectWordsToClip", "frmMain"};
    const QStringList &words = lists_.CorrectWordList.rows();
    step([&] {
        if (words.isEmpty()) {
            ground_.boxes.ShowInfoBox(u"Es gibt noch keine richtigen Wörter zum kopieren !"_s, BoxSign::Info,
                                      product::name);
            return;
        }
        QGuiApplication::clipboard()->setText(words.join(u"\r\n"_s) + u"\r\n"_s);
        ground_.notes.tell(words.size() == 1 ? note::oneWordCopied : note::wordsCopied,
                           QString::number(words.size()));
    });
}

/// In a vowel mode no dialog is shown, and the last answer is used as it stands.
void WordListPanel::askWord(Entry entry)
{
    const bool adds = entry == Entry::Add;
    Procedure step{ground_.log, adds ? "mnuAddWord_Click" : "mnuEditWord_Click", "frmMain"};
    const StoreList *list = controls_.CorrectWordList;
    if (play_.checkedVowels() == Vowels::None) {
        const QPoint corner = list->mapToGlobal(QPoint(0, 0));
        const QString shown = adds ? QString() : lists_.CorrectWordList.at(list->ListIndex());
        step([&] {
            inputResult_ = ground_.boxes.ShowWordBox(
                u"Bitte gib ein Wort ein.\nEs wird aber nur in deine Liste übernommen, wenn es auch im "
                u"Wortel-Wörterbuch vorkommt!"_s,
                BoxStyle::Wortel, shown, adds ? u"Wort hinzufügen"_s : u"Wort bearbeiten"_s,
                std::max(0, corner.x()), std::max(0, corner.y()));
        });
    }
    step([&] { takeWord(entry); });
}

void WordListPanel::takeWord(Entry entry)
{
    if (!tests_.ChkForDuplicates2(inputResult_) || tests_.ChkForDuplicates(inputResult_))
        return;
    const QString word = tests_.ProperCase(inputResult_);
    if (entry == Entry::Add)
        lists_.CorrectWordList.add(word);
    else
        lists_.CorrectWordList.replace(controls_.CorrectWordList->ListIndex(), word);
    emit wordsEdited(lists_.CorrectWordList.rows(), true);
}

void WordListPanel::mnuDeleteWord()
{
    Procedure step{ground_.log, "mnuDeleteWord_Click", "frmMain"};
    const int row = controls_.CorrectWordList->ListIndex();
    if (row < 0) {
        ground_.notes.tell(note::noWordMarked);
        return;
    }
    if (step([&] { lists_.CorrectWordList.removeAt(row); }))
        emit wordsEdited(lists_.CorrectWordList.rows(), false);
}

void WordListPanel::mnuDeleteAllWords()
{
    Procedure step{ground_.log, "mnuDeleteAllWords_Click", "frmMain"};
    bool agreed = true;
    step([&] {
        agreed = ground_.boxes.agrees(u"Entfernen alle Wörter?"_s, u"Wortel - Bestätigen"_s,
                                      BoxStyle::Confirm, ground_.options.isOn(Setting::ConfirmBeforeErase));
    });
    if (!agreed)
        return;
    step([&] { lists_.CorrectWordList.clear(); });
    emit wordsEdited({}, false);
}

/// The list is sorted: words cannot be moved, only the mark can.
void WordListPanel::moveSelection(int step)
{
    const int row = controls_.CorrectWordList->ListIndex() + step;
    if (row < 0)
        ground_.notes.tell(note::firstWord);
    else if (row >= lists_.CorrectWordList.count())
        ground_.notes.tell(note::lastWord);
    else
        controls_.CorrectWordList->setListIndex(row);
}
