// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/chooser/chooser_controls.h"
#include "language/chooser/chooser_rules.h"
#include "platform/word_store.h"
#include "platform/work.h"

#include <QDialog>
#include <QScopedValueRollback>

#include <functional>

class ListLoader;
class Procedure;
struct Ground;
struct WordLists;

/// The window "Wörter mit ausgewählten Wortelen suchen": a teacher marks morphemes, collects the words of the
/// dictionary that hold them, thins them out and hands them over to be retyped. It works on lists of its own:
/// the game's are only read. One of its commands runs at a time; a search or a draw lets events in, can be
/// cancelled, and ends when the window closes.
class frmChooseWortel : public QDialog, private WorkView
{
    Q_OBJECT

public:
    /// A list of that many words or more cannot be practised.
    static constexpr int wordLimit = 1024;

    frmChooseWortel(Ground &ground, const WordLists &lists, ListLoader &loader, QWidget *parent = nullptr);
    ~frmChooseWortel() override;

    /// Shows the window modally. The words that were handed over; none if it was left otherwise.
    QStringList choose();
    const ChooserControls &controls() const { return c_; }

    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    using Kind = ChooserControls::Kind;

    // frm_choose_wortel.cpp: the window, its search and its draws
    void begin(const WorkPlan &plan) override;
    void tell(const QString &caption) override;
    void offerCancel() override {}
    void end() override;
    void rest(bool resting);

    void connectControls();
    /// A slot that acts while no other command of the window does: a search lets a hand in.
    template <typename Act> auto once(Act act)
    {
        return [this, act](const auto &...) {
            if (busy_ || leaving_)
                return;
            const QScopedValueRollback busy(busy_, true);
            act();
        };
    }
    void fillLists();
    void showKind();
    void showCounts();
    void showFound();
    WordStore &store(Kind kind) { return morphemes_[kind]; }
    MarkList &list(Kind kind) const { return *c_.morphemes[kind].list; }
    Kind searchType() const;
    WordFilter wordFilter() const;

    void Check4_Click();
    void search(Work &work);
    QStringList stemsToFind();
    void setFound(const QStringList &words);
    void Label6_Click();
    void Check5_Click();
    void drawMarks(MarkList &list, const QString &number, const std::function<bool(const QString &)> &fits);

    // chooser_lists.cpp: what is done to the lists and with the words
    void addMorpheme(Kind kind);
    void loadStems();
    void Check20_Click();
    void Check21_Click();
    void handOver(const QStringList &words, const QString &noneText, const QString &limitText);
    void Check1_Click();
    void Check3_Click();
    void openMenu(MarkList &list, const QPoint &position);
    void mnuClearList(MarkList &list);
    void mnuDelWortel(MarkList &list);
    bool hasMarks(const MarkList &list, const QString &noneText, const QString &unmarkedText);
    void mnuCopySelWords(const MarkList &list);
    void mnuSaveSelWords(const MarkList &list);
    void Save_Result();
    void saveTo(Procedure &step, const QStringList &words);
    WordStore &storeOf(const MarkList &list);
    void showRows(MarkList &list);
    void notice(const QString &text);

    Ground &ground_;
    const WordLists &lists_;
    ListLoader &loader_;
    ChooserControls c_;
    std::array<WordStore, 3> morphemes_;
    WordStore found_;
    QStringList chosen_;
    bool busy_ = false;    ///< one of the window's commands runs
    bool leaving_ = false; ///< the window has been closed
};
