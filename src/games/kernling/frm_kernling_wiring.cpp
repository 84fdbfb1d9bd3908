// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// Which control of the stem game's window goes to which of its parts. Every way in passes the window's doors.
#include "games/kernling/frm_kernling.h"

#include "games/kernling/frm_kernling_parts.h"
#include "games/scores/high_scores.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "widgets/long_press.h"
#include "widgets/opening_press.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

template <typename Action> auto FrmKernling::play(Action action)
{
    return throughGate(parts_->desk.doors, Gate::Way::Play, [this, action](auto &&...) {
        if (!ground_.gate.isClosing())
            action();
    });
}

template <typename Action> void FrmKernling::onClick(PressButton *button, Action action)
{
    connect(button, &PressButton::clicked, this, play(action));
}

template <typename Action> void FrmKernling::onKeys(const QKeySequence &keys, Action action)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, play(action));
}

void FrmKernling::wire()
{
    makeMenus();
    wireWords();
    wireText();
    wireResult();
    Parts &p = *parts_;
    connect(&ground_.gate, &Gate::closeRequested, &p.desk.doors, &Gate::requestClose);
    connect(p.controls.Label9, &ClickLabel::clicked, &ground_.gate, &Gate::cancelWork);
    connect(&p.options, &frmKernlingOptions::resetScores, this,
            [this] { hall_.scores.ResetScores(ScoredGame::Kernling); });
}

void FrmKernling::wireWords()
{
    Parts &p = *parts_;
    const KernlingControls &c = p.controls;
    c.List1->show(&p.desk.List1);
    c.List1->whileDragging = [&p](const std::function<void()> &drag) {
        if (const Gate::Passage passage = p.desk.doors.enter(Gate::Way::Play))
            drag();
    };
    onClick(c.Command3, [&p] { p.words.Command3_Click(); });
    onClick(c.Command9, [&p] { p.words.Command9_Click(); });
    onClick(c.Command13, [&p] { p.words.Command13_Click(); });
    onClick(c.Command14, [&p] { p.words.Command14_Click(); });
    onClick(c.Command7, [&p] { p.words.Command7_Click(); });
    onClick(c.Command11, [&p] { p.words.Command11_Click(); });
    onClick(c.Command12, [&p] { p.words.Command12_Click(); });
    onClick(c.Command15, [&p] { p.words.Command15_Click(); });
    onClick(c.cmdUp, [&p] { p.words.moveUp(); });
    onClick(c.cmdDown, [&p] { p.words.moveDown(); });
    onKeys(Qt::ALT | Qt::Key_Up, [&p] { p.words.moveUp(); });
    onKeys(Qt::ALT | Qt::Key_Down, [&p] { p.words.moveDown(); });
}

void FrmKernling::wireText()
{
    Parts &p = *parts_;
    const KernlingControls &c = p.controls;
    onClick(c.Command5, [&p] { p.source.Command5_Click(); });
    onClick(c.Command4, [&p] { p.source.Command4_Click(); });
    onClick(c.Command8, [this] { Command8_Click(); });
    onClick(c.cmdUnHighlight, [&p] { p.marking.cmdUnHighlight_Click(); });
    onClick(c.cmdResetColors, [&p] { p.marking.cmdResetColors_Click(); });
    onClick(c.Check7, [this] { Check7_Click(); });
    onClick(c.Command6, [this] { editOptions(); });
    onKeys(Qt::CTRL | Qt::Key_Return, [this] { Check7_Click(); });
    onKeys(Qt::CTRL | Qt::Key_Enter, [this] { Check7_Click(); });

    const auto zoom = [&c](int steps) { return [&c, steps] { c.RTF->zoomLetters(steps); }; };
    onClick(c.cmdLarger, zoom(1));
    onClick(c.cmdSmaller, zoom(-1));
    onKeys(QKeySequence(Qt::CTRL | Qt::Key_Plus), zoom(1));
    onKeys(QKeySequence(Qt::CTRL | Qt::Key_Equal), zoom(1));
    onKeys(QKeySequence(Qt::CTRL | Qt::Key_Minus), zoom(-1));

    onClick(c.Command10, [&p] { p.game.Command10_MouseDown(Qt::LeftButton); });
    LongPress::offer(c.Command10);
    connect(c.Command10, &PressButton::mouseDown, this, [this](Qt::MouseButton button) {
        if (button == Qt::RightButton)
            play([this] { parts_->game.Command10_MouseDown(Qt::RightButton); })();
    });
    connect(c.OptManualHighlight, &QRadioButton::toggled, this, &FrmKernling::showWayOfMarking);

    connect(c.RTF, &KernlingText::marked, this, play([this] {
                if (parts_->controls.OptAutoHighlight->isChecked())
                    parts_->marking.HighLightSelection();
            }));
    connect(c.RTF, &KernlingText::rightPressed, this, &FrmKernling::showTextMenu);
    // Whoever drops waits until the drop has come back.
    connect(c.RTF, &KernlingText::fileDropped, this, [this](const QString &path) {
        parts_->desk.doors.whenFree([this, stored = storedPath(path)] {
            if (isVisible() && !parts_->controls.RTF->isLocked())
                parts_->source.load(stored);
        });
    });
}

void FrmKernling::wireResult()
{
    Parts &p = *parts_;
    const KernlingControls &c = p.controls;
    c.UserFoundWortelList->show(&p.desk.lists.UserFoundWortelList);
    c.UserFalseWortelList->show(&p.desk.lists.UserFalseWortelList);
    c.wortellist->show(&p.desk.lists.wortellist);
    onClick(c.Command1, [&p] { p.marking.clearFound(); });
    onClick(c.Command2, [&p] { p.marking.clearFalse(); });
    connect(c.Check3, &QCheckBox::toggled, c.UserFoundWortelList, &QWidget::setVisible);
    connect(c.Check4, &QCheckBox::toggled, c.UserFalseWortelList, &QWidget::setVisible);
    connect(c.Check5, &QCheckBox::toggled, c.rtfResponse, &QWidget::setVisible);
    connect(c.Check1, &PressButton::toggled, this, &FrmKernling::showStemList);
    connect(c.wortellist, &StoreList::rightPressed, this, &FrmKernling::showStemMenu);
}

void FrmKernling::makeMenus()
{
    Parts &p = *parts_;
    const auto makeMenu = [this](const QString &name) {
        auto *menu = new QMenu(this);
        menu->setObjectName(name);
        return menu;
    };
    const auto add = [this](QMenu *menu, const QString &name, const QString &caption, auto action) {
        QAction *entry = menu->addAction(caption);
        entry->setObjectName(name);
        connect(entry, &QAction::triggered, this, play(action));
    };
    p.mnuRTF = makeMenu(u"mnuRTF"_s);
    add(p.mnuRTF, u"mnuCheckWord"_s, u"Wort im Wörterbuch suchen"_s, [this] { mnuCheckWord_Click(); });
    add(p.mnuRTF, u"mnuPrintRTF"_s, u"Text drucken"_s, [this] { mnuPrintRTF_Click(); });
    p.mnuWortelList = makeMenu(u"mnuWortelList"_s);
    add(p.mnuWortelList, u"mnuSearch"_s, u"Ausgewählte Wortstämme im Text suchen"_s,
        [this] { mnuSearch_Click(); });
}

void FrmKernling::showTextMenu(const QPoint &position)
{
    if (parts_->game.KernlingRunning() || !parts_->desk.doors.letsIn(Gate::Way::Play))
        return;
    QMenu &menu = *parts_->mnuRTF;
    menu.popup(OpeningPress::placeFor(menu, parts_->controls.RTF->mapToGlobal(position)));
}

void FrmKernling::showStemMenu(const QPoint &position)
{
    if (parts_->game.KernlingRunning() || !parts_->desk.doors.letsIn(Gate::Way::Play) ||
        parts_->desk.lists.wortellist.isEmpty())
        return;
    QMenu &menu = *parts_->mnuWortelList;
    menu.popup(OpeningPress::placeFor(menu, parts_->controls.wortellist->mapToGlobal(position)));
}
