// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/chooser/frm_choose_wortel.h"
#include "language/chooser/mark_list.h"
#include "language/list_loader.h"
#include "platform/word_lists.h"
#include "support/test_ground.h"
#include "widgets/click_label.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QtTest>

using namespace Qt::StringLiterals;

using Kind = ChooserControls::Kind;

/// The chooser's window on a small dictionary, shown but not modal.
struct Chooser
{
    TestGround t;
    WordLists lists;
    ListLoader loader{t.ground, lists};
    std::unique_ptr<frmChooseWortel> window;
    ChooserControls c;
    QString longFile = t.writeFile(u"text kurz lang\\langer Stammvokal.Txt"_s, u"bahn\r\n see \r\n\r\n"_s);
    QString shortFile = t.writeFile(u"text kurz lang\\kurzer Stammvokal.Txt"_s, u"ball\r\n"_s);

    Chooser()
    {
        lists.WortelList.addAll({u"fahr"_s, u"bahn"_s, u"ball"_s});
        lists.PrefixList.addAll({u"ab"_s, u"ver"_s});
        lists.SuffixList.addAll({u"en"_s, u"ig"_s});
        lists.LexiconList.addAll({u"Erfahrung"_s, u"abfahren"_s, u"Fahrbahn"_s, u"Seeigel"_s, u"Ballung"_s,
                                  u"ABEND"_s, u"fahrig"_s, u"Verfahrenstechnik"_s, u"erfahrung"_s});
        remake();
    }
    void remake()
    {
        window = std::make_unique<frmChooseWortel>(t.ground, lists, loader);
        c = window->controls();
        window->resize(837, 448);
        window->show();
    }

    MarkList &list(int kind) const { return *c.morphemes[static_cast<std::size_t>(kind)].list; }
    static void mark(MarkList &list, const QStringList &texts)
    {
        std::vector<bool> marks;
        for (const QString &row : list.rows())
            marks.push_back(texts.contains(row));
        list.mark(marks);
    }
    void kind(int kind) const { c.morphemes[static_cast<std::size_t>(kind)].OptSearchType->click(); }
    void set(const QString &names) const
    {
        for (const QString &name : names.split(u' ', Qt::SkipEmptyParts))
            window->findChild<QAbstractButton *>(name)->click();
    }
    /// Marks the stems and searches; the words found.
    QStringList search(const QStringList &stems) const
    {
        mark(list(Kind::Stem), stems);
        c.Check4->click();
        return c.List2->rows();
    }
    void choose(MarkList &from, const char *entry) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, from.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(from.viewport(), &event);
        auto *menu = window->findChild<QMenu *>();
        QVERIFY(menu != nullptr);
        menu->findChild<QAction *>(QLatin1String(entry))->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QString lastBox() const { return t.boxes.asked.isEmpty() ? QString() : t.boxes.asked.last().text; }
    QString state() const
    {
        QStringList all = list(Kind::Stem).rows() + c.List2->rows();
        return all.join(u' ') + c.List2->marked().join(u' ') + QString::number(t.boxes.asked.size()) +
               QString::number(t.fileDialogs.asked.size());
    }
    bool rests() const { return c.sProgressBar->isHidden() && c.Label6->isHidden() && c.Label8->isHidden(); }
};
