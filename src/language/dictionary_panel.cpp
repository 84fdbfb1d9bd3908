// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/dictionary_panel.h"

#include "board/hand/command_router.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/procedure.h"
#include "platform/word_lists.h"
#include "widgets/control_sheet.h"
#include "widgets/dropper.h"
#include "widgets/list_stand.h"
#include "widgets/main_controls.h"
#include "widgets/opening_press.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QLineEdit>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

using C = MainControls;

/// No word is checked or dragged while the dictionary lies open.
constexpr SheetRow openSheet[] = {{tool<&C::Command2>, SheetRow::Disabled},
                                  {tool<&C::Option1, 0>, SheetRow::Disabled},
                                  {tool<&C::Command3>, SheetRow::None, u"Suchen"}};
constexpr SheetRow searchSheet[] = {{tool<&C::Command2>, SheetRow::Disabled},
                                    {tool<&C::Option1, 0>, SheetRow::Disabled},
                                    {tool<&C::Command4>, SheetRow::Disabled}};

} // namespace

DictionaryPanel::DictionaryPanel(Ground &ground, const MainControls &controls, ControlSheet &sheet,
                                 WordLists &lists, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , sheet_(sheet)
    , lists_(lists)
    , mnuLex_(makeMenu())
{}

void DictionaryPanel::registerCommands(CommandRouter &router)
{
    router.onMenu(401, [this] { toggle(); });
}

bool DictionaryPanel::isOpen() const { return !controls_.LexiconList->isHidden(); }

void DictionaryPanel::toggle()
{
    Procedure step{ground_.log, "Command3_MouseDown", "frmMain"};
    if (isOpen()) {
        close();
        sheet_.setToolTip(controls_.Command3, u"Wörterbuch"_s);
        controls_.Dropper1->takeFocus();
        return;
    }
    sheet_.lay(Reason::Dictionary, openSheet);
    step([&] { openList(); });
}

void DictionaryPanel::toggleForSearch()
{
    Procedure step{ground_.log, "Command2_MouseDown", "frmMain"};
    if (isOpen()) {
        close();
        return;
    }
    sheet_.lay(Reason::Dictionary, searchSheet);
    step([&] { openList(); });
}

/// The word in the entry field is dropped before it could be searched for: the search box starts empty, as
/// required.
void DictionaryPanel::openList()
{
    controls_.LexiconList->show();
    placeOpen();
    if (lists_.LexiconList.isEmpty())
        ground_.notes.tell(note::dictionaryEmpty);
    controls_.CorrectWordList->hide();
    controls_.Dropper1->setCaption(QString());
    controls_.Text2->show();
    controls_.Text2->setText(controls_.Dropper1->Caption());
    controls_.Text2->setFocus();
    if (controls_.form->focusWidget() == controls_.Text2)
        controls_.Text2->selectAll();
}

void DictionaryPanel::placeOpen()
{
    if (!isOpen())
        return;
    standOnBand(controls_, controls_.LexiconList);
    const QRect list = controls_.LexiconList->geometry();
    const int height = controls_.Text2->sizeHint().height();
    controls_.Text2->setGeometry(list.left(), list.top() - height, list.width(), height);
    controls_.Text2->raise();
}

void DictionaryPanel::close()
{
    controls_.LexiconList->hide();
    controls_.Text2->hide();
    sheet_.takeOff(Reason::Dictionary);
}

void DictionaryPanel::storeLoading(const WordStore *store)
{
    if (store == &lists_.LexiconList && isOpen())
        close();
}

void DictionaryPanel::Text2_Change()
{
    if (!isOpen())
        return;
    const QString start = controls_.Text2->text();
    const int row = lists_.LexiconList.findPrefix(start, 0);
    controls_.LexiconList->setListIndex(row);
    if (row < 0 && !start.isEmpty())
        ground_.notes.tell(note::noSuchWord, start);
}

template <typename Slot> auto DictionaryPanel::play(Slot slot)
{
    return throughGate(ground_.gate, Gate::Way::Play, [slot](auto &&...) { slot(); });
}

QMenu *DictionaryPanel::makeMenu()
{
    auto *menu = new QMenu(controls_.form);
    menu->setObjectName(u"mnuLex"_s);
    const auto add = [menu](const QString &name, const QString &caption) {
        QAction *action = menu->addAction(caption);
        action->setObjectName(name);
        return action;
    };
    connect(add(u"mnuShowTip"_s, u"Tipp zeigen"_s), &QAction::triggered, this,
            play([this] { emit tipRequested(); }));
    menu->addSeparator();
    connect(add(u"mnuAddToRetypeList"_s, u"Ausgewähltes Wort in Wörterliste hinzufügen"_s),
            &QAction::triggered, this, play([this] { mnuAddToRetypeList(); }));
    connect(add(u"mnuClearRetypeList"_s, u"Alle Wörter in Wörterliste löschen"_s), &QAction::triggered, this,
            play([this] { mnuClearRetypeList(); }));
    connect(add(u"mnuStartRetypeFromList"_s, u"Abschreiben der Wörterliste starten"_s), &QAction::triggered,
            this, play([this] { emit startRetypeFromList(); }));
    menu->addSeparator();
    connect(add(u"mnuAddWortelToRetypeList"_s, u"Auswahlfenster"_s), &QAction::triggered, this, play([this] {
                close();
                emit chooserRequested();
            }));
    menu->addSeparator();
    connect(add(u"mnuCloseLex"_s, u"Schließen"_s), &QAction::triggered, this, play([this] { toggle(); }));
    return menu;
}

void DictionaryPanel::LexiconList_MouseDown(const QPoint &position)
{
    if (lists_.LexiconList.isEmpty())
        ground_.notes.tell(note::dictionaryEmpty);
    else
        mnuLex_->popup(OpeningPress::placeFor(*mnuLex_, controls_.LexiconList->mapToGlobal(position)));
}

void DictionaryPanel::mnuAddToRetypeList()
{
    Procedure step{ground_.log, "mnuAddToRetypeList_Click", "frmMain"};
    const QString word = lists_.LexiconList.at(controls_.LexiconList->ListIndex());
    if (word.isEmpty())
        ground_.notes.tell(note::noWordMarked);
    else if (step([&] { lists_.CorrectWordList.add(word); }))
        ground_.notes.tell(note::wordAdded, word);
}

void DictionaryPanel::mnuClearRetypeList()
{
    Procedure step{ground_.log, "mnuClearRetypeList_Click", "frmMain"};
    ground_.notes.tell(lists_.CorrectWordList.isEmpty() ? note::wordListEmpty : note::listCleared);
    step([&] { lists_.CorrectWordList.clear(); });
}
