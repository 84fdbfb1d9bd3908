// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/chooser_controls.h"

#include "language/chooser/mark_list.h"
#include "platform/text_masks.h"
#include "widgets/click_label.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/roomy_style.h"
#include "widgets/window_style.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

/// What is said and named for one kind of morpheme.
struct KindRow
{
    const char *option;
    const char16_t *caption;
    Colour back;
    Colour text;
    const char16_t *help;
    const char *list;
    const char *markAll;
    const char16_t *markAllCaption;
    const char *unmark;
    const char *random;
    const char *number;
    const char *add;
    const char16_t *addTip;
};

constexpr std::array<KindRow, 3> kindRows{{
    {"OptSearchType(0)", u"Präfix", colours::prefixBack, colours::prefixText, u"Präfix: \"Vorsilbe\"",
     "ListPrefix", "Check6", u"Alle Präfixe markieren", "Check7", "Check14", "Text1", "Check18",
     u"Präfix hinzufügen"},
    {"OptSearchType(1)", u"Wortel", colours::wortelBack, colours::wortelText, u"Wortel: \"Wortstamm\"",
     "List1", "Check10", u"Alle Wortele markieren", "Check11", "Check12", "Text3", "Check17",
     u"Wortel hinzufügen / Wortel-Liste laden"},
    {"OptSearchType(2)", u"Suffix", colours::suffixBack, colours::suffixText, u"Suffix: \"Endung\"",
     "ListSuffix", "Check8", u"Alle Suffixe markieren", "Check9", "Check13", "Text2", "Check19",
     u"Suffix hinzufügen"},
}};

constexpr std::array<const char16_t *, 5> filterCaptions{u"Alle Wörter", u"Kurze Wörter", u"Lange Wörter",
                                                         u"Großschreibung ", u"Kleinschreibung "};

const QString windowStyle = uR"(
QGroupBox { font-weight: bold; border: 1px solid #9cc3f5; border-radius: 6px; margin-top: 7px; padding: 5px 4px 2px 4px; background: #f6faff; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: #1a4f9c; background: transparent; }
QLineEdit { padding: 3px; }
)"_s;

QString text(const char16_t *literal) { return QString::fromUtf16(literal); }

/// Makes the controls of one window. Each has its name, and its caption or a name of its own for who hears
/// the window.
class Maker
{
public:
    explicit Maker(QWidget *form)
        : form_(form)
    {}

    template <typename Control> Control *named(Control *control, const char *name, const QString &spoken = {})
    {
        control->setObjectName(QLatin1String(name));
        if (!spoken.isEmpty())
            control->setAccessibleName(spoken);
        return control;
    }

    PressButton *button(const char *name, const QString &caption, const QString &tip = {})
    {
        auto *button = named(new PressButton(form_), name, tip.isEmpty() ? caption : tip);
        button->setText(caption);
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        return button;
    }

    template <typename Box = QCheckBox>
    Box *box(const char *name, const char16_t *caption, const QString &tip = {})
    {
        auto *box = named(new Box(text(caption), form_), name);
        box->setToolTip(tip);
        box->setMinimumHeight(touchHeight);
        return box;
    }

    template <typename Label = QLabel> Label *label(const char *name, const QString &words)
    {
        auto *label = named(new Label(form_), name);
        label->setTextFormat(Qt::PlainText);
        label->setText(words);
        return label;
    }

    /// A line of the guide through the window; each stands where its step is done.
    QLabel *help(const char16_t *words)
    {
        QLabel *line = label("", text(words));
        line->setWordWrap(true);
        line->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        QPalette colours = line->palette();
        colours.setColor(QPalette::WindowText, paint::ink);
        line->setPalette(colours);
        return line;
    }

    QLineEdit *numberField(const char *name, const QString &spoken)
    {
        auto *field = named(new QLineEdit(u"10"_s, form_), name, spoken);
        field->setMaxLength(6);
        field->setFixedWidth(52);
        field->setAlignment(Qt::AlignRight);
        QObject::connect(field, &QLineEdit::textEdited, field, [field](const QString &typed) {
            int caret = field->cursorPosition();
            const QString kept = Integer_Pos(typed, &caret);
            if (kept == typed)
                return;
            field->setText(kept);
            field->setCursorPosition(caret);
        });
        return field;
    }

    MarkList *list(const char *name, const QString &spoken)
    {
        auto *list = named(new MarkList(form_), name, spoken);
        list->setMinimumHeight(90);
        return list;
    }

private:
    static constexpr int touchHeight = RoomyStyle::lowestRow;
    QWidget *form_;
};

template <typename Layout = QVBoxLayout> Layout *tight(int spacing = 3)
{
    auto *layout = new Layout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QHBoxLayout *lineOf(std::initializer_list<QWidget *> controls)
{
    auto *line = tight<QHBoxLayout>();
    for (QWidget *control : controls)
        line->addWidget(control);
    return line;
}

QGroupBox *panel(const char16_t *title, QLayout *content)
{
    auto *group = new QGroupBox(text(title));
    auto *whole = tight();
    whole->addLayout(content);
    whole->setContentsMargins(4, 4, 4, 4);
    group->setLayout(whole);
    return group;
}

/// The list of one kind with what marks its rows.
QWidget *makePage(Maker &make, ChooserControls::Morphemes &kind, const KindRow &row)
{
    const QString caption = text(row.caption);
    kind.list = make.list(row.list, caption);
    kind.count = make.label("", {});
    kind.count->setAlignment(Qt::AlignRight);
    kind.markAll = make.button(row.markAll, text(row.markAllCaption));
    kind.unmark = make.button(row.unmark, u"Markierung rückgängig"_s);
    kind.random = make.button(row.random, u"Zufall"_s, u"So viele durch Zufall markieren"_s);
    kind.number = make.numberField(row.number, u"Zufall: Anzahl"_s);
    kind.add = make.button(row.add, caption, text(row.addTip));
    kind.add->setFace(toQColor(row.back), toQColor(row.text));

    auto *page = new QWidget;
    auto *column = tight();
    page->setLayout(column);
    column->addLayout(lineOf({make.help(row.help), kind.count}));
    column->addWidget(kind.list, 1);
    column->addLayout(lineOf({kind.markAll, kind.unmark}));
    auto *last = tight<QHBoxLayout>();
    last->addWidget(panel(u"Zufällige Auswahl", lineOf({kind.random, kind.number})), 3);
    last->addWidget(panel(u"Hinzufügen", lineOf({kind.add})), 2);
    column->addLayout(last);
    return page;
}

QLayout *makeMorphemes(Maker &make, ChooserControls &c, QWidget *form)
{
    auto *column = tight();
    column->addWidget(make.help(u"1. Drücke einen der drei Morphemschalter."));
    auto *options = tight<QHBoxLayout>();
    auto *group = new QButtonGroup(form);
    c.pages = new QStackedWidget;
    for (std::size_t i = 0; i < kindRows.size(); ++i) {
        const KindRow &row = kindRows[i];
        PressButton *option = make.button(row.option, text(row.caption));
        option->setCheckable(true);
        option->setFace(toQColor(row.back), toQColor(row.text));
        group->addButton(option, static_cast<int>(i));
        options->addWidget(option);
        c.morphemes[i].OptSearchType = option;
        c.pages->addWidget(makePage(make, c.morphemes[i], row));
    }
    column->addLayout(options);
    column->addWidget(
        make.help(u"2. Markiere in der gewählten Liste alle gewünschten Morpheme oder lasse sie durch "
                  u"Zufall auswählen."));
    column->addWidget(c.pages, 1);
    QObject::connect(group, &QButtonGroup::idToggled, c.pages, [pages = c.pages](int id, bool on) {
        if (on)
            pages->setCurrentIndex(id);
    });
    return column;
}

QLayout *makeSearch(Maker &make, ChooserControls &c)
{
    c.ChkUseKurzVokal = make.box("ChkUseKurzVokal", u"Kurzvokal");
    c.ChkUseLangVokal = make.box("ChkUseLangVokal", u"Langvokal");
    c.ChkUseAdjektiv = make.box("ChkUseAdjektiv", u"Adjektiv", u"Bitte auch \"Kleinschreibung\" wählen"_s);
    c.ChkUseNomen = make.box("ChkUseNomen", u"Nomen", u"Bitte auch \"Großschreibung\" wählen"_s);
    auto *grid = tight<QGridLayout>(1);
    grid->addWidget(c.ChkUseKurzVokal, 0, 0);
    grid->addWidget(c.ChkUseLangVokal, 0, 1);
    grid->addWidget(c.ChkUseAdjektiv, 1, 0);
    grid->addWidget(c.ChkUseNomen, 1, 1);
    constexpr std::array<std::pair<int, int>, 5> places{{{2, 0}, {3, 0}, {3, 1}, {4, 0}, {4, 1}}};
    grid->setRowMinimumHeight(1, 26);
    for (std::size_t i = 0; i < places.size(); ++i) {
        c.OptWordFilter[i] =
            make.box<QRadioButton>(qPrintable(u"OptWordFilter(%1)"_s.arg(i)), filterCaptions[i]);
        grid->addWidget(c.OptWordFilter[i], places[i].first, places[i].second);
    }
    c.ChkClearListBefore = make.box("ChkClearListBefore", u"Liste löschen vor einer neuen Suche");
    c.Check4 = make.button("Check4", u"Wörter suchen"_s);
    c.Check4->setFace(paint::running, Qt::black);
    c.Label7 = make.label("Label7", {});
    c.Label7->setAlignment(Qt::AlignCenter);
    c.sProgressBar = make.named(new GameProgressBar, "sProgressBar");
    c.sProgressBar->setFixedHeight(22);
    c.Label6 = make.label<ClickLabel>("Label6", u"✕"_s);
    c.Label6->setToolTip(u"Suche abbrechen"_s);
    c.Label6->setAccessibleName(u"Suche abbrechen"_s);
    c.Label6->setMinimumSize(RoomyStyle::lowestRow, RoomyStyle::lowestRow);
    c.Label6->setAlignment(Qt::AlignCenter);

    auto *column = tight();
    column->addLayout(grid);
    column->addWidget(c.ChkClearListBefore);
    column->addWidget(make.help(u"3. Klicke auf \"Wörter suchen\""));
    column->addWidget(c.Check4);
    column->addWidget(c.Label7);
    column->addLayout(lineOf({c.sProgressBar, c.Label6}));
    column->addStretch(1);
    column->addWidget(make.help(u"Bei einer umfangreicheren Auswahl kannst du in beiden Listen die Tasten "
                                u"\"Umschalt\" und \"Strg\" benutzen"));
    return column;
}

QLayout *makeFound(Maker &make, ChooserControls &c)
{
    c.List2 = make.list("List2", u"Gefundene Wörter"_s);
    c.Label3 = make.label("Label3", u"0"_s);
    c.Label4 = make.label("Label4", u"0"_s);
    c.Check5 = make.button("Check5", u"Zufällige Wörter"_s, u"So viele Wörter durch Zufall markieren"_s);
    c.TxtNumWords = make.numberField("TxtNumWords", u"Zufällige Wörter: Anzahl"_s);
    c.ChkUsePrefixes = make.box("ChkUsePrefixes", u"Mit ausgewählten Präfixen");
    c.ChkUseSuffixes = make.box("ChkUseSuffixes", u"Mit ausgewählten Suffixen");
    c.Check20 = make.button("Check20", u"Duplikate entfernen"_s);
    c.Check21 = make.button("Check21", u"Löschen"_s, u"Alle gefundenen Wörter aus der Liste entfernen"_s);
    c.cmdSave = make.button("cmdSave", u"Speichern"_s, u"Alle gefundenen Wörter speichern (Strg+S)"_s);
    c.Label8 = make.label<ClickLabel>("Label8", u"Bitte warten..."_s);
    c.Label8->setToolTip(u"Klick: abbrechen"_s);
    c.Label8->setMinimumHeight(RoomyStyle::lowestRow);
    QFont link = c.Label8->font();
    link.setUnderline(true);
    c.Label8->setFont(link);
    for (QLabel *count : {c.Label3, c.Label4}) {
        QFont font = count->font();
        font.setBold(true);
        count->setFont(font);
    }

    auto *counts =
        lineOf({make.label("", u"Gefunden:"_s), c.Label3, make.label("", u"   Markiert:"_s), c.Label4});
    counts->addStretch(1);
    counts->addWidget(c.Label8);
    auto *column = tight();
    column->addLayout(counts);
    column->addWidget(c.List2, 1);
    column->addWidget(
        make.help(u"4. Unter \"Auswählen\" kannst du Wörter mit markierten Präfixen/Suffixen aus der "
                  u"Liste herausfiltern."));
    column->addLayout(lineOf({c.Check5, c.TxtNumWords}));
    column->addWidget(c.ChkUsePrefixes);
    column->addWidget(c.ChkUseSuffixes);
    column->addLayout(lineOf({c.Check20, c.Check21, c.cmdSave}));
    return column;
}

QWidget *makeFoot(Maker &make, ChooserControls &c)
{
    c.Check1 = make.button("Check1", u"Abschreiben: Alle Wörter"_s);
    c.Check3 = make.button("Check3", u"Abschreiben: Ausgewählte Wörter"_s);
    c.Check2 = make.button("Check2", u"Abbrechen"_s);
    QLabel *limit = make.help(u"Max. 1024 Wörter benutzen.");
    limit->setWordWrap(false);
    auto *foot = new GradientPanel;
    auto *line = lineOf({limit, c.Check1, c.Check3, c.Check2});
    line->setContentsMargins(12, 3, 8, 4);
    line->setSpacing(8);
    line->insertStretch(1, 1);
    foot->setLayout(line);
    for (PressButton *button : {c.Check1, c.Check3, c.Check2})
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    return foot;
}

} // namespace

ChooserControls makeChooserControls(QWidget *form)
{
    ChooserControls c;
    Maker make(form);
    QPalette colours = form->palette();
    colours.setColor(QPalette::Window, window_style::paper);
    form->setPalette(colours);
    form->setStyleSheet(windowStyle);
    auto *columns = tight<QHBoxLayout>(6);
    columns->setContentsMargins(6, 2, 6, 0);
    columns->addWidget(panel(u"Benutzerdefinierte Auswahl", makeMorphemes(make, c, form)), 11);
    columns->addWidget(panel(u"Suchen", makeSearch(make, c)), 9);
    columns->addWidget(panel(u"Auswählen", makeFound(make, c)), 11);
    auto *whole = tight(4);
    whole->addLayout(columns, 1);
    whole->addWidget(makeFoot(make, c));
    form->setLayout(whole);

    c.morphemes[ChooserControls::Stem].OptSearchType->setChecked(true);
    c.morphemes[ChooserControls::Stem].list->setToolTip(u"Rechtsklick: Menü zeigen"_s);
    c.OptWordFilter[0]->setChecked(true);
    for (QWidget *shownAtWork :
         std::initializer_list<QWidget *>{c.sProgressBar, c.Label6, c.Label7, c.Label8}) {
        QSizePolicy keepsItsPlace = shownAtWork->sizePolicy();
        keepsItsPlace.setRetainSizeWhenHidden(true);
        shownAtWork->setSizePolicy(keepsItsPlace);
        shownAtWork->hide();
    }
    return c;
}
