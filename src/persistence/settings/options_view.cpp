// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/settings/options_view.h"

#include "persistence/settings/option_fields.h"
#include "persistence/settings/options_layout.h"
#include "platform/options.h"
#include "widgets/gradient.h"
#include "widgets/key_order.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;
using options_layout::FrameRow;
using options_layout::PageRow;

namespace {

/// A button on a page: on the line of a setting, or at the end of a frame.
struct ButtonRow
{
    const char *name;
    const char16_t *caption;
    const char16_t *tip;
    const char16_t *frame; ///< nullptr: on the line of `beside`
    Setting beside;
};

constexpr std::array<ButtonRow, 10> buttonRows{{
    {"Command3", u"…", u"Datei mit Hauptbausteinen wählen", nullptr, Setting::WortelFile},
    {"Command6", u"✕", u"Feld leeren", nullptr, Setting::WortelFile},
    {"Command4", u"…", u"Bild für den Hintergrund wählen", nullptr, Setting::BackgroundPicture},
    {"Command5", u"✕", u"Feld leeren", nullptr, Setting::BackgroundPicture},
    {"Command7", u"Zuordnen", u"Doppelklick auf eine Sitzung öffnet Wortel-Meister", u"Frame4",
     Setting::Count},
    {"Command8", u"Entfernen", u"Zuordnung wieder entfernen", u"Frame4", Setting::Count},
    {"Command2", u"Bearbeiten", u"Wörterbuch bearbeiten", u"FrameWörterbuch", Setting::Count},
    {"Command1", u"Bestenliste zurücksetzen", u"Bestenliste von Klotar zurücksetzen", u"Frame3",
     Setting::Count},
    {"Command10", u"Bestenliste zurücksetzen", u"Bestenliste von Tonarin zurücksetzen", u"Frame5",
     Setting::Count},
    {"Command9", u"Bestenlisten zurücksetzen", u"Alle Bestenlisten von Paarlon zurücksetzen", u"Frame2",
     Setting::Count},
}};

const QString pageStyle = uR"(
QToolButton { border: 1px solid transparent; border-radius: 6px; padding: 8px 10px; color: black; background: transparent; }
QToolButton:hover { background: rgba(255, 255, 255, 110); }
QToolButton:checked { background: white; border-color: #3d95ff; font-weight: bold; }
QToolButton:focus { border: 2px solid #e67e00; padding: 7px 9px; }
)"_s;

QString text(const char16_t *literal) { return QString::fromUtf16(literal); }

QLabel *makeCaption(const QString &caption, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(caption.trimmed(), parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setBuddy(buddy);
    label->setToolTip(buddy->toolTip());
    return label;
}

} // namespace

OptionsView::OptionsView(Options &options, QWidget *parent)
    : QWidget(parent)
    , options_(options)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, window_style::paper);
    setPalette(colours);
    setAutoFillBackground(true);
    setStyleSheet(window_style::groupStyle() + pageStyle);
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(makeBanner());
    pages_ = new QStackedWidget(this);
    for (const PageRow &page : options_layout::pages)
        pages_->addWidget(makePage(text(page.frame)));
    makeFrames();
    for (const SettingRow &row : settingsTable())
        if (row.window == SettingsWindow::frmOptions)
            addField(row);
    addButtons();
    closeFrames();
    right->addWidget(pages_, 1);
    right->addWidget(makeFoot());

    auto *whole = new QHBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(makeBar());
    whole->addLayout(right, 1);
    ShowProperFrame(text(options_layout::pages.front().frame));
    QWidget *last = barMain_->buttons().constLast();
    for (const PageRow &page : options_layout::pages)
        last = orderForKeys(columns_.value(text(page.frame)), last);
    orderForKeys(button(u"cmdOK"_s)->parentWidget()->layout(), last);
}

QWidget *OptionsView::makeBar()
{
    auto *panel = new GradientPanel(this);
    panel->setObjectName(u"barMain"_s);
    auto *items = new QVBoxLayout(panel);
    items->setContentsMargins(8, 10, 8, 10);
    barMain_ = new QButtonGroup(this);
    for (const PageRow &page : options_layout::pages) {
        auto *item = new QToolButton(panel);
        item->setText(text(page.caption));
        item->setToolTip(text(page.tip));
        item->setCheckable(true);
        item->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        item->setProperty("page", text(page.frame));
        barMain_->addButton(item);
        items->addWidget(item);
        connect(item, &QToolButton::clicked, this, [this, &page] { ShowProperFrame(text(page.frame)); });
    }
    items->addStretch(1);
    return panel;
}

QWidget *OptionsView::makeBanner()
{
    auto *picBanner = new GradientPanel(this);
    picBanner->setObjectName(u"picBanner"_s);
    auto *line = new QHBoxLayout(picBanner);
    line->setContentsMargins(14, 5, 14, 5);
    lblSelected_ = new QLabel(picBanner);
    lblSelected_->setObjectName(u"lblSelected"_s);
    lblSelected_->setTextFormat(Qt::PlainText);
    QFont font = lblSelected_->font();
    font.setPixelSize(17);
    font.setBold(true);
    lblSelected_->setFont(font);
    line->addWidget(lblSelected_);
    return picBanner;
}

QWidget *OptionsView::makeFoot()
{
    auto *foot = new QWidget(this);
    auto *line = new QHBoxLayout(foot);
    line->setContentsMargins(12, 4, 12, 6);
    line->addStretch(1);
    for (const auto &[name, caption] :
         {std::pair{u"cmdOK"_s, u"OK"_s}, std::pair{u"cmdCancel"_s, u"Abbrechen"_s}}) {
        QPushButton *button = makeButton(name, caption, {}, foot);
        button->setMinimumWidth(96);
        line->addWidget(button);
    }
    button(u"cmdOK"_s)->setDefault(true);
    return foot;
}

QWidget *OptionsView::makePage(const QString &name)
{
    auto *page = new QWidget(this);
    page->setObjectName(name);
    auto *columns = new QGridLayout(page);
    columns->setContentsMargins(12, 6, 12, 4);
    columns->setHorizontalSpacing(12);
    columns_.insert(name, columns);
    // A page takes lines of its own, above the frames of its first column.
    auto *own = new QVBoxLayout;
    own->setSpacing(7);
    auto *left = new QVBoxLayout;
    left->addLayout(own);
    columns->addLayout(left, 0, 0);
    columns->addLayout(new QVBoxLayout, 0, 1);
    columns->setColumnStretch(0, 1);
    columns->setColumnStretch(1, 1);
    frames_.insert(name, own);

    auto *area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it has no name that a reader could say, and its fields scroll it
    area->setWidget(page);
    // The paper of the window shows through.
    page->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
    return area;
}

void OptionsView::makeFrames()
{
    for (const FrameRow &row : options_layout::frames) {
        auto *frame = new QGroupBox(text(row.title), this);
        frame->setObjectName(text(row.frame));
        auto *lines = new QVBoxLayout(frame);
        lines->setContentsMargins(4, 6, 4, 2);
        lines->setSpacing(3);
        frames_.insert(text(row.frame), lines);
        if (QGridLayout *columns = columns_.value(text(row.parent)))
            columns->itemAtPosition(0, row.column)->layout()->addWidget(frame);
    }
}

QHBoxLayout *OptionsView::newLine(const QString &frame)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(6);
    frames_.value(frame)->addLayout(line);
    return line;
}

void OptionsView::addField(const SettingRow &row)
{
    QWidget *holder = frames_.value(QLatin1String(row.frame))->parentWidget();
    QWidget *field = makeOptionField(row, options_, holder);
    fields_.insert(row.id, field);
    if (row.beside != row.id) {
        addBeside(row, field);
        return;
    }
    QHBoxLayout *line = newLine(QLatin1String(row.frame));
    lines_.insert(row.id, line);
    if (isTextSetting(row.type))
        addText(row, field);
    else
        line->addWidget(field, 1);
}

void OptionsView::addText(const SettingRow &row, QWidget *field)
{
    QHBoxLayout *line = lines_.value(row.id);
    QLabel *caption = makeCaption(text(row.caption), field, field->parentWidget());
    if (row.type == SettingType::Path)
        caption->setWordWrap(false);
    line->addWidget(caption, row.type == SettingType::Path ? 0 : 1);
    line->addWidget(field, row.type == SettingType::Path ? 1 : 0);
}

void OptionsView::addBeside(const SettingRow &row, QWidget *field)
{
    QHBoxLayout *line = lines_.value(row.beside);
    if (!isTextSetting(row.type)) {
        line->addWidget(field, 1);
        return;
    }
    // A second number beside the same box stands under the first.
    if (line->count() > 1) {
        line = newLine(QLatin1String(row.frame));
        line->addStretch(1);
    }
    line->addWidget(field);
    QLabel *caption = makeCaption(text(row.caption), field, field->parentWidget());
    caption->setWordWrap(false);
    line->addWidget(caption);
}

QPushButton *OptionsView::makeButton(const QString &name, const QString &caption, const QString &tip,
                                     QWidget *parent)
{
    auto *made = new QPushButton(caption, parent);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setAccessibleName(tip.isEmpty() ? caption : tip);
    made->setAutoDefault(false);
    if (caption.size() == 1)
        made->setFixedWidth(26);
    buttons_.insert(name, made);
    return made;
}

void OptionsView::addButtons()
{
    auto *typeLine = newLine(u"Frame4"_s);
    QWidget *files = frames_.value(u"Frame4"_s)->parentWidget();
    for (const ButtonRow &row : buttonRows) {
        QWidget *holder =
            row.frame ? frames_.value(text(row.frame))->parentWidget() : field(row.beside)->parentWidget();
        QPushButton *made = makeButton(QLatin1String(row.name), text(row.caption), text(row.tip), holder);
        if (!row.frame) {
            lines_.value(row.beside)->addWidget(made);
            continue;
        }
        if (holder == files) {
            if (typeLine->isEmpty())
                typeLine->addWidget(makeCaption(u"Zugehörige (.wlx)"_s, made, holder), 1);
            typeLine->addWidget(made);
            continue;
        }
        QHBoxLayout *line = newLine(text(row.frame));
        line->addWidget(made);
        line->addStretch(1);
    }
}

void OptionsView::closeFrames()
{
    for (const FrameRow &row : options_layout::frames) {
        QWidget *frame = frames_.value(text(row.frame))->parentWidget();
        if (!columns_.contains(text(row.parent)))
            frames_.value(text(row.parent))->addWidget(frame);
        QFont plain = font();
        plain.setBold(false);
        for (QWidget *child : frame->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
            child->setFont(plain);
    }
    for (QGridLayout *columns : std::as_const(columns_)) {
        for (int column = 0; column < 2; ++column)
            static_cast<QVBoxLayout *>(columns->itemAtPosition(0, column)->layout())->addStretch(1);
        columns->setRowStretch(0, 1);
    }
}

void OptionsView::ShowProperFrame(const QString &name)
{
    for (std::size_t at = 0; at < options_layout::pages.size(); ++at) {
        const PageRow &page = options_layout::pages[at];
        if (text(page.frame) != name)
            continue;
        pages_->setCurrentIndex(static_cast<int>(at));
        lblSelected_->setText(text(page.caption).remove(u'&'));
        barMain_->buttons().at(static_cast<qsizetype>(at))->setChecked(true);
    }
}

QString OptionsView::shownFrame() const
{
    return text(options_layout::pages[static_cast<std::size_t>(pages_->currentIndex())].frame);
}
