// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/settings/option_fields.h"

#include "platform/options.h"
#include "platform/program_size.h"
#include "platform/text_masks.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr int indicatorGap = 6;
constexpr int wrapFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

QRect wrappedText(const QFontMetrics &metrics, const QString &text, int width)
{
    return metrics.boundingRect(QRect(0, 0, std::max(width, 1), 10000), wrapFlags, text);
}

clsTextBox::Mask maskOf(SettingType type)
{
    switch (type) {
    case SettingType::Integer:
        return Integer_Pos;
    case SettingType::SignedInteger:
        return Integer_All;
    default:
        return nullptr;
    }
}

QLineEdit *makeTextField(const SettingRow &row, Options &options, QWidget *parent)
{
    auto *box = new QLineEdit(options.text(row.id), parent);
    box->setFixedHeight(21);
    new clsTextBox(box, maskOf(row.type));
    if (row.type != SettingType::Path) {
        box->setFixedWidth(56);
        box->setAlignment(Qt::AlignRight);
    }
    const auto showValue = [box, &options, id = row.id] {
        if (box->text() != options.text(id))
            box->setText(options.text(id));
        if (settingRow(id).type == SettingType::Path)
            box->setToolTip(box->text());
    };
    showValue();
    QObject::connect(box, &QLineEdit::textChanged, &options,
                     [&options, id = row.id](const QString &text) { options.setText(id, text); });
    QObject::connect(&options, &Options::edited, box, [showValue, own = row.id](Setting id) {
        if (id == own)
            showValue();
    });
    return box;
}

QCheckBox *makeBox(const SettingRow &row, Options &options, QWidget *parent)
{
    auto *box = new CaptionCheck(QString::fromUtf16(row.caption), parent);
    const auto showValue = [box, &options, id = row.id] {
        const QSignalBlocker quiet(box);
        // The third state is shown where it was stored; clicks walk between on and off.
        box->setCheckState(options.box(id) == 2 ? Qt::PartiallyChecked
                           : options.isOn(id)   ? Qt::Checked
                                                : Qt::Unchecked);
        box->setTristate(false);
        box->update();
    };
    showValue();
    QObject::connect(box, &QCheckBox::toggled, &options,
                     [&options, id = row.id](bool on) { options.setBox(id, on ? 1 : 0); });
    QObject::connect(&options, &Options::edited, box, [showValue, own = row.id](Setting id) {
        if (id == own)
            showValue();
    });
    return box;
}

QRadioButton *makeOption(const SettingRow &row, Options &options, QWidget *parent)
{
    auto *button = new CaptionOption(QString::fromUtf16(row.caption), parent);
    // Which one is on is the options' business: a group of none, as a damaged store gives it, must be able to
    // show.
    button->setAutoExclusive(false);
    const auto showValue = [button, &options, id = row.id] { button->setChecked(options.isOn(id)); };
    showValue();
    QObject::connect(button, &QRadioButton::clicked, &options, [&options, showValue, id = row.id] {
        options.setOption(id);
        showValue();
    });
    QObject::connect(&options, &Options::edited, button, [showValue, own = row.id](Setting id) {
        if (id == own)
            showValue();
    });
    return button;
}

QComboBox *makeSizeField(const SettingRow &row, Options &options, QWidget *parent)
{
    using namespace program_size;
    auto *box = new QComboBox(parent);
    box->addItem(textOf(automatic));
    for (int size = smallest; size <= largest; size += step)
        box->addItem(textOf(size));
    const auto showValue = [box, &options, id = row.id] {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(box->findText(textOf(wishOf(options.text(id)))));
    };
    showValue();
    QObject::connect(box, &QComboBox::currentTextChanged, &options,
                     [&options, id = row.id](const QString &text) { options.setText(id, text); });
    QObject::connect(&options, &Options::edited, box, [showValue, own = row.id](Setting id) {
        if (id == own)
            showValue();
    });
    return box;
}

} // namespace

clsTextBox::clsTextBox(QLineEdit *box, Mask mask)
    : QObject(box)
    , pBackColor_GotFocus(255, 255, 225)
    , pForeColor_GotFocus(Qt::black)
    , pForeColor_Normal(box->palette().color(QPalette::WindowText))
    , box_(box)
    , mask_(mask)
{
    paintBox(pBackColor_Normal, pForeColor_Normal);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, &clsTextBox::filter);
}

bool clsTextBox::eventFilter(QObject *watched, QEvent *event)
{
    if (pAllowColorChange && event->type() == QEvent::FocusIn)
        paintBox(pBackColor_GotFocus, pForeColor_GotFocus);
    else if (pAllowColorChange && event->type() == QEvent::FocusOut)
        paintBox(pBackColor_Normal, pForeColor_Normal);
    return QObject::eventFilter(watched, event);
}

void clsTextBox::filter()
{
    if (!mask_ || filtering_)
        return;
    int caret = box_->cursorPosition();
    const QString kept = mask_(box_->text(), &caret);
    if (kept == box_->text())
        return;
    filtering_ = true;
    box_->setText(kept);
    box_->setCursorPosition(caret);
    filtering_ = false;
}

void clsTextBox::paintBox(const QColor &back, const QColor &text)
{
    QPalette palette = box_->palette();
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Text, text);
    box_->setPalette(palette);
}

template <typename Button>
WrappingButton<Button>::WrappingButton(const QString &caption, QWidget *parent)
    : Button(caption, parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    this->setSizePolicy(policy);
    this->setAccessibleName(caption);
}

template <typename Button> int WrappingButton<Button>::indicatorWidth() const
{
    return this->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + indicatorGap;
}

template <typename Button> int WrappingButton<Button>::heightForWidth(int width) const
{
    const int indicator = this->style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    return std::max(indicator,
                    wrappedText(this->fontMetrics(), this->text(), width - indicatorWidth()).height()) +
           2;
}

template <typename Button> QSize WrappingButton<Button>::sizeHint() const
{
    const int width = indicatorWidth() + this->fontMetrics().horizontalAdvance(this->text()) + 2;
    return {width, heightForWidth(width)};
}

template <typename Button> QSize WrappingButton<Button>::minimumSizeHint() const
{
    int widest = 0;
    for (const QString &word : this->text().split(u' '))
        widest = std::max(widest, this->fontMetrics().horizontalAdvance(word));
    const int width = indicatorWidth() + widest + 2;
    return {width, this->fontMetrics().height() + 2};
}

template <typename Button> void WrappingButton<Button>::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const int spare = std::max(0, this->height() - heightForWidth(this->width())) / 2;
    const QRect text(indicatorWidth(), spare + 1, this->width() - indicatorWidth(),
                     this->height() - spare - 1);
    const int size = this->style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
    const int top = std::max(0, text.top() + (this->fontMetrics().height() - size) / 2);
    option.rect = QRect(0, top, this->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this), size);
    const bool isCheck = std::is_same_v<Button, QCheckBox>;
    this->style()->drawPrimitive(isCheck ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton,
                                 &option, &painter, this);
    painter.setPen(this->palette().color(this->isEnabled() ? QPalette::Normal : QPalette::Disabled,
                                         QPalette::WindowText));
    painter.drawText(text, wrapFlags, this->text());
    if (this->hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = wrappedText(this->fontMetrics(), this->text(), text.width())
                         .translated(text.topLeft())
                         .adjusted(-2, 0, 2, 0);
        this->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

template class WrappingButton<QCheckBox>;
template class WrappingButton<QRadioButton>;

QWidget *makeOptionField(const SettingRow &row, Options &options, QWidget *parent)
{
    QWidget *field = nullptr;
    if (row.type == SettingType::Box)
        field = makeBox(row, options, parent);
    else if (row.type == SettingType::Option)
        field = makeOption(row, options, parent);
    else if (row.type == SettingType::Size)
        field = makeSizeField(row, options, parent);
    else
        field = makeTextField(row, options, parent);
    field->setObjectName(QLatin1String(row.control));
    field->setAccessibleName(QString::fromUtf16(row.caption).trimmed());
    if (row.tip)
        field->setToolTip(QString::fromUtf16(row.tip));
    return field;
}
