// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/frm_choose_wortel.h"

#include "language/chooser/mark_list.h"
#include "language/chooser/random_draw.h"
#include "language/chooser/word_search.h"
#include "language/list_loader.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/play_state.h"
#include "platform/procedure.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/click_label.h"
#include "widgets/long_press.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/window_style.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *formName = "frmChooseWortel";
constexpr QSize wishedSize{1080, 700};
constexpr std::array<const char16_t *, 3> kindNames{u"Präfixe", u"Wortele", u"Suffixe"};

} // namespace

frmChooseWortel::frmChooseWortel(Ground &ground, const WordLists &lists, ListLoader &loader, QWidget *parent)
    : QDialog(parent)
    , ground_(ground)
    , lists_(lists)
    , loader_(loader)
    , c_(makeChooserControls(this))
{
    setObjectName(QLatin1String(formName));
    setWindowTitle(u"Wörter mit ausgewählten Wortelen suchen"_s);
    connectControls();
    fillLists();
    showKind();
    showFound();
    list(Kind::Stem).setFocus();
}

frmChooseWortel::~frmChooseWortel() = default;

void frmChooseWortel::connectControls()
{
    const auto onClick = [this](QAbstractButton *button, auto act) {
        connect(button, &QAbstractButton::clicked, this, once(act));
    };
    for (const Kind kind : {Kind::Prefix, Kind::Stem, Kind::Suffix}) {
        const ChooserControls::Morphemes &row = c_.morphemes[kind];
        connect(row.OptSearchType, &QAbstractButton::toggled, this, &frmChooseWortel::showKind);
        onClick(row.markAll, [&row] { row.list->markAll(); });
        onClick(row.unmark, [&row] { row.list->clearMarks(); });
        onClick(row.add, [this, kind] { addMorpheme(kind); });
        onClick(row.random, [this, &row] {
            drawMarks(*row.list, row.number->text(), [](const QString &) { return true; });
        });
        connect(row.number, &QLineEdit::returnPressed, row.random, &QAbstractButton::click);
        connect(row.list, &MarkList::marksChanged, this, &frmChooseWortel::showCounts);
    }
    LongPress::offer(c_.morphemes[Kind::Stem].add);
    connect(c_.morphemes[Kind::Stem].add, &PressButton::mouseDown, this, [this](Qt::MouseButton button) {
        if (button == Qt::RightButton)
            once([this] { loadStems(); })();
    });
    for (MarkList *shown : {&list(Kind::Stem), c_.List2})
        connect(shown, &MarkList::menuWanted, this,
                [this, shown](const QPoint &position) { once([&] { openMenu(*shown, position); })(); });
    for (MarkList *shown : {&list(Kind::Prefix), &list(Kind::Stem), &list(Kind::Suffix), c_.List2})
        connect(shown, &MarkList::copyWanted, this, once([this, shown] { mnuCopySelWords(*shown); }));
    connect(c_.List2, &MarkList::marksChanged, this, &frmChooseWortel::showCounts);
    onClick(c_.Check4, [this] { Check4_Click(); });
    onClick(c_.Check5, [this] { Check5_Click(); });
    onClick(c_.Check20, [this] { Check20_Click(); });
    onClick(c_.Check21, [this] { Check21_Click(); });
    onClick(c_.Check1, [this] { Check1_Click(); });
    onClick(c_.Check3, [this] { Check3_Click(); });
    connect(c_.TxtNumWords, &QLineEdit::returnPressed, c_.Check5, &QAbstractButton::click);
    connect(c_.Check2, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(c_.Label6, &ClickLabel::clicked, this, &frmChooseWortel::Label6_Click);
    connect(c_.Label8, &ClickLabel::clicked, &ground_.gate, &Gate::cancelWork);
    onClick(c_.cmdSave, [this] { Save_Result(); });
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
            once([this] { Save_Result(); }));
    connect(new QShortcut(QKeySequence::Open, this), &QShortcut::activated, this,
            once([this] { loadStems(); }));
}

// The window
// ------------------------------------------------------------------------------------------------------------

void frmChooseWortel::fillLists()
{
    Procedure step{ground_.log, "Form_Load", formName};
    const WordStore *const sources[] = {&lists_.PrefixList, &lists_.WortelList, &lists_.SuffixList};
    for (const Kind kind : {Kind::Prefix, Kind::Stem, Kind::Suffix}) {
        step([&] { store(kind).addAll(sources[kind]->rows()); });
        list(kind).showRows(store(kind).rows());
    }
}

QStringList frmChooseWortel::choose()
{
    window_style::fitToScreen(*this, wishedSize);
    return exec() == Accepted ? chosen_ : QStringList();
}

/// Closing ends what runs. Words that were handed over stay so, whatever closes the window once more.
void frmChooseWortel::done(int result)
{
    if (std::exchange(leaving_, true))
        return;
    ground_.gate.cancelWork();
    QDialog::done(result);
}

/// While something runs, Esc ends that and not the window.
void frmChooseWortel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && ground_.gate.work() != nullptr)
        Label6_Click();
    else
        QDialog::keyPressEvent(event);
}

/// Vowels belong to stems and kinds of words to endings.
void frmChooseWortel::showKind()
{
    c_.ChkUseKurzVokal->setEnabled(searchType() == Kind::Stem);
    c_.ChkUseLangVokal->setEnabled(searchType() == Kind::Stem);
    c_.ChkUseAdjektiv->setEnabled(searchType() == Kind::Suffix);
    c_.ChkUseNomen->setEnabled(searchType() == Kind::Suffix);
    showCounts();
}

void frmChooseWortel::showCounts()
{
    for (const Kind kind : {Kind::Prefix, Kind::Stem, Kind::Suffix})
        c_.morphemes[kind].count->setText(u"%1 %2, %3 markiert"_s.arg(list(kind).rows().size())
                                              .arg(QString::fromUtf16(kindNames[kind]))
                                              .arg(list(kind).markedCount()));
    c_.Label4->setText(QString::number(c_.List2->markedCount()));
}

void frmChooseWortel::showFound()
{
    c_.List2->showRows(found_.rows());
    c_.List2->setToolTip(found_.isEmpty() ? QString() : u"Rechtsklick: Menü zeigen"_s);
    c_.Label3->setText(QString::number(found_.count()));
    showCounts();
}

ChooserControls::Kind frmChooseWortel::searchType() const
{
    for (const Kind kind : {Kind::Prefix, Kind::Suffix})
        if (c_.morphemes[kind].OptSearchType->isChecked())
            return kind;
    return Kind::Stem;
}

WordFilter frmChooseWortel::wordFilter() const
{
    for (std::size_t i = 0; i < c_.OptWordFilter.size(); ++i)
        if (c_.OptWordFilter[i]->isChecked())
            return static_cast<WordFilter>(i);
    return WordFilter::All;
}

// A work, as it shows itself on the window
// ------------------------------------------------------------------------------------------------------------

void frmChooseWortel::begin(const WorkPlan &plan)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if ((plan.marks & WorkPlan::Bar) == 0) {
        c_.Label8->show();
        return;
    }
    c_.sProgressBar->setValue(0);
    tell(u"Bitte warten..."_s);
    c_.sProgressBar->show();
    c_.Label6->show();
}

void frmChooseWortel::tell(const QString &caption) { c_.sProgressBar->setCaption(caption); }

void frmChooseWortel::end()
{
    rest(false);
    c_.sProgressBar->hide();
    c_.sProgressBar->setValue(0);
    tell({});
    for (QWidget *shown : std::initializer_list<QWidget *>{c_.Label6, c_.Label7, c_.Label8})
        shown->hide();
    QGuiApplication::restoreOverrideCursor();
}

/// While words are searched, the list of those found stands still, and so does what works with it.
void frmChooseWortel::rest(bool resting)
{
    for (QWidget *control :
         std::initializer_list<QWidget *>{c_.List2, c_.Check1, c_.Check2, c_.Check3, c_.Check5, c_.Check20,
                                          c_.cmdSave, c_.TxtNumWords, c_.ChkUsePrefixes, c_.ChkUseSuffixes})
        control->setEnabled(!resting);
    c_.List2->setUpdatesEnabled(!resting);
}

// The search
// ------------------------------------------------------------------------------------------------------------

void frmChooseWortel::Check4_Click()
{
    Procedure step{ground_.log, "Check4_MouseDown", formName};
    if (store(Kind::Stem).isEmpty())
        return;
    Work work(ground_, {WorkPlan::Bar | WorkPlan::Cancel, 1}, this);
    if (c_.ChkClearListBefore->isChecked()) {
        setFound({});
        work.appear();
    }
    rest(true);
    step([&] { search(work); });
    const WordFilter filter = wordFilter();
    if (filter != WordFilter::All)
        step([&] {
            QStringList kept;
            for (const QString &word : found_.rows())
                if (passes(word, filter))
                    kept.append(word);
            setFound(kept);
        });
    showFound();
}

void frmChooseWortel::search(Work &work)
{
    WordSearch search(lists_.LexiconList, found_);
    connect(&search, &WordSearch::begins, c_.sProgressBar, &GameProgressBar::setMaximum);
    connect(&search, &WordSearch::progressed, c_.sProgressBar, &GameProgressBar::setValue);
    connect(&search, &WordSearch::stemBegins, c_.Label7, &QLabel::setText);
    connect(&search, &WordSearch::found, c_.Label3, qOverload<int>(&QLabel::setNum));
    switch (searchType()) {
    case Kind::Prefix:
        search.AddSelPrefixFromLex(list(Kind::Prefix).marked(), work);
        break;
    case Kind::Stem: {
        const QStringList stems = stemsToFind();
        c_.Label7->show();
        work.forgetCancel();
        search.findStems(stems, work);
        break;
    }
    case Kind::Suffix:
        search.AddSelSuffixFromLex(list(Kind::Suffix).marked(), c_.ChkUseAdjektiv->isChecked(),
                                   c_.ChkUseNomen->isChecked(), work);
        break;
    }
}

/// The marked stems and those of the vowel files. Only of the long vowels are those left out that stand in
/// the list anyway; the difference is meant.
QStringList frmChooseWortel::stemsToFind()
{
    QStringList stems = list(Kind::Stem).marked();
    if (c_.ChkUseLangVokal->isChecked())
        for (const QString &stem : loader_.vowelStems(Vowels::Long))
            if (!store(Kind::Stem).contains(stem))
                stems.append(stem);
    if (c_.ChkUseKurzVokal->isChecked())
        stems.append(loader_.vowelStems(Vowels::Short));
    return stems;
}

void frmChooseWortel::setFound(const QStringList &words)
{
    found_.clear();
    found_.addAll(words);
    showFound();
}

void frmChooseWortel::Label6_Click()
{
    ground_.gate.cancelWork();
    c_.sProgressBar->setCaption(u"Breche ab..."_s);
}

// The draws
// ------------------------------------------------------------------------------------------------------------

void frmChooseWortel::Check5_Click()
{
    const bool byPrefix = c_.ChkUsePrefixes->isChecked();
    const bool bySuffix = c_.ChkUseSuffixes->isChecked();
    const QStringList prefixes = list(Kind::Prefix).marked();
    const QStringList suffixes = list(Kind::Suffix).marked();
    drawMarks(*c_.List2, c_.TxtNumWords->text(), [&](const QString &word) {
        return (!byPrefix || IsInPrefixList(word, prefixes)) && (!bySuffix || IsInSuffixList(word, suffixes));
    });
}

/// Marks at random, as often as `number` says, a row of the list if it fits. A row that does not fit has been
/// drawn all the same.
void frmChooseWortel::drawMarks(MarkList &list, const QString &number,
                                const std::function<bool(const QString &)> &fits)
{
    Procedure step{ground_.log, "drawMarks", formName};
    const QStringList rows = list.rows();
    if (rows.isEmpty())
        return;
    ground_.rnd.Randomize();
    Work work(ground_, {}, this);
    list.clearMarks();
    RandomDraw draw(ground_.rnd, static_cast<int>(rows.size()));
    std::vector<bool> marks(static_cast<std::size_t>(rows.size()));
    const double rounds = Val(number);
    for (double round = 1; round <= rounds && !work.isCancelled(); ++round) {
        const std::optional<int> row = draw.round(work);
        if (row && fits(rows.at(*row)))
            marks[static_cast<std::size_t>(*row)] = true;
    }
    step([&] { list.mark(marks); });
}
