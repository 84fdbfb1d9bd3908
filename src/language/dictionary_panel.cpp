// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/dictionary_panel.h"

#include "language/list_stand.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/word_lists.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/opening_press.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QLineEdit>
#include <QMenu>

using namespace Qt::StringLiterals;

DictionaryPanel::DictionaryPanel(Ground &ground, const MainControls &controls, WordLists &lists,
                                 QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , mnuLex_(makeMenu())
{}

bool DictionaryPanel::isOpen() const { return !controls_.LexiconList->isHidden(); }

void DictionaryPanel::toggle()
{
    Procedure step{ground_.log, "Command3_MouseDown", "frmMain"};
    step([&] { standOnBand(controls_, controls_.LexiconList); });
    controls_.LexiconList->setVisible(!isOpen());
    controls_.Command4->setEnabled(true);
    if (isOpen()) {
        controls_.Command3->setToolTip(u"Suchen"_s);
        step([&] { openList(); });
        return;
    }
    controls_.Command3->setToolTip(u"Wörterbuch"_s);
    step([&] { closeList(); });
    controls_.Dropper1->setEnabled(true);
    controls_.Dropper1->show();
    controls_.Dropper1->takeFocus();
}

void DictionaryPanel::toggleForSearch()
{
    Procedure step{ground_.log, "Command2_MouseDown", "frmMain"};
    step([&] { standOnBand(controls_, controls_.LexiconList); });
    controls_.LexiconList->setVisible(!isOpen());
    controls_.Command4->setEnabled(!isOpen());
    if (isOpen()) {
        step([&] { openList(); });
        return;
    }
    step([&] { closeList(); });
    controls_.Command5->setEnabled(true);
}

/// The word in the entry field is dropped before it could be searched for: the search box starts empty, as
/// required.
void DictionaryPanel::openList()
{
    controls_.CorrectWordList->hide();
    controls_.Dropper1->setCaption(QString());
    const QRect list = controls_.LexiconList->geometry();
    const int height = controls_.Text2->sizeHint().height();
    controls_.Text2->setGeometry(list.left(), list.top() - height, list.width(), height);
    controls_.Text2->show();
    controls_.Text2->raise();
    controls_.Text2->setText(controls_.Dropper1->Caption());
    controls_.Text2->setFocus();
    if (controls_.form->focusWidget() == controls_.Text2)
        controls_.Text2->selectAll();
    controls_.Command2->setEnabled(false);
    controls_.Option1[0]->setEnabled(false);
}

void DictionaryPanel::closeList()
{
    controls_.Text2->hide();
    controls_.Command2->setEnabled(true);
    controls_.Option1[0]->setEnabled(true);
}

void DictionaryPanel::storeLoading(const WordStore *store)
{
    if (store != &lists_.LexiconList || !isOpen())
        return;
    controls_.LexiconList->hide();
    controls_.Command3->setToolTip(u"Wörterbuch"_s);
    controls_.Command4->setEnabled(true);
    closeList();
}

void DictionaryPanel::Text2_Change()
{
    if (!isOpen())
        return;
    controls_.LexiconList->setListIndex(lists_.LexiconList.findPrefix(controls_.Text2->text(), 0));
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
            &DictionaryPanel::tipRequested);
    menu->addSeparator();
    connect(add(u"mnuAddToRetypeList"_s, u"Ausgewähltes Wort in Wörterliste hinzufügen"_s),
            &QAction::triggered, this, &DictionaryPanel::mnuAddToRetypeList);
    connect(add(u"mnuClearRetypeList"_s, u"Alle Wörter in Wörterliste löschen"_s), &QAction::triggered, this,
            &DictionaryPanel::mnuClearRetypeList);
    connect(add(u"mnuStartRetypeFromList"_s, u"Abschreiben der Wörterliste starten"_s), &QAction::triggered,
            this, &DictionaryPanel::startRetypeFromList);
    menu->addSeparator();
    connect(add(u"mnuAddWortelToRetypeList"_s, u"Auswahlfenster"_s), &QAction::triggered, this,
            &DictionaryPanel::chooserRequested);
    menu->addSeparator();
    connect(add(u"mnuCloseLex"_s, u"Schließen"_s), &QAction::triggered, this, &DictionaryPanel::toggle);
    return menu;
}

void DictionaryPanel::LexiconList_MouseDown(const QPoint &position)
{
    if (!lists_.LexiconList.isEmpty())
        mnuLex_->popup(OpeningPress::placeFor(*mnuLex_, controls_.LexiconList->mapToGlobal(position)));
}

void DictionaryPanel::mnuAddToRetypeList()
{
    Procedure step{ground_.log, "mnuAddToRetypeList_Click", "frmMain"};
    const QString word = lists_.LexiconList.at(controls_.LexiconList->ListIndex());
    if (!word.isEmpty())
        step([&] { lists_.CorrectWordList.add(word); });
}

void DictionaryPanel::mnuClearRetypeList()
{
    Procedure step{ground_.log, "mnuClearRetypeList_Click", "frmMain"};
    step([&] { lists_.CorrectWordList.clear(); });
}
