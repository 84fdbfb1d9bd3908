// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/accessible_tools.h"

#include "widgets/alpha_panel.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/msg_scroller.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QButtonGroup>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto spokenCaption = "spokenCaption"; ///< a label's property

/// A press and a release in the middle of the widget, where a hand could reach it: not behind a box.
void pressAsHand(QWidget &widget, Qt::MouseButton button)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (!widget.isVisible() || (modal != nullptr && modal != widget.window()) ||
        QApplication::activePopupWidget() != nullptr)
        return;
    const QPointer<QWidget> alive(&widget); // a press may close the window that the widget stands in
    const QPointF middle = widget.rect().center();
    for (const auto &[type, held] : {std::pair{QEvent::MouseButtonPress, Qt::MouseButtons(button)},
                                     std::pair{QEvent::MouseButtonRelease, Qt::MouseButtons()}}) {
        if (alive == nullptr)
            return;
        QMouseEvent event(type, middle, widget.mapToGlobal(middle), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// What a tool's tip says of its two presses: "Spiel starten / Bestenliste zeigen".
struct TwoPresses
{
    explicit TwoPresses(const QString &tip)
        : left(tip.section(u" / "_s, 0, 0))
        , right(tip.section(u" / "_s, 1))
    {}
    QString left;
    QString right; ///< empty if the right press does nothing
};

/// A control that a hand presses.
class AccessibleTool : public QAccessibleWidget
{
public:
    explicit AccessibleTool(QWidget *widget, QAccessible::Role role = QAccessible::PushButton)
        : QAccessibleWidget(widget, role)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString tip = widget()->toolTip();
        if (kind == QAccessible::Name && !tip.isEmpty())
            return TwoPresses(tip).left;
        if (kind == QAccessible::Description)
            return tip;
        const QString own = QAccessibleWidget::text(kind);
        const auto *label = qobject_cast<const QLabel *>(widget());
        return kind == QAccessible::Name && own.isEmpty() && label != nullptr ? label->text() : own;
    }

    QStringList actionNames() const override
    {
        if (!widget()->isEnabled())
            return {};
        QStringList names{pressAction()};
        if (!TwoPresses(widget()->toolTip()).right.isEmpty())
            names << showMenuAction();
        return names + QAccessibleWidget::actionNames(); // the focus, where it takes it
    }

    QString localizedActionDescription(const QString &action) const override
    {
        const TwoPresses presses(widget()->toolTip());
        return action == pressAction()      ? text(QAccessible::Name)
               : action == showMenuAction() ? presses.right
                                            : QAccessibleWidget::localizedActionDescription(action);
    }

    void doAction(const QString &action) override
    {
        if (action != pressAction() && action != showMenuAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        const Qt::MouseButton button = action == pressAction() ? Qt::LeftButton : Qt::RightButton;
        QTimer::singleShot(0, widget(), [widget = widget(), button] { pressAsHand(*widget, button); });
    }

protected:
    QWidget *widget() const { return QAccessibleWidget::widget(); }
};

/// A tool of the band, or a button of a window of the game's own.
class AccessiblePressButton : public AccessibleTool
{
public:
    explicit AccessiblePressButton(QWidget *widget)
        : AccessibleTool(widget)
    {}

    QAccessible::Role role() const override
    {
        const PressButton &tool = button();
        if (!tool.isCheckable())
            return QAccessible::PushButton;
        const bool oneOfMany = tool.autoExclusive() || (tool.group() != nullptr && tool.group()->exclusive());
        return oneOfMany ? QAccessible::RadioButton : QAccessible::CheckBox;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && !button().spokenCaption().isEmpty())
            return button().spokenCaption().arg(button().text());
        return AccessibleTool::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleTool::state();
        state.checkable = button().isCheckable();
        state.checked = button().isChecked();
        state.pressed = button().isDown();
        return state;
    }

private:
    const PressButton &button() const { return static_cast<const PressButton &>(*widget()); }
};

class AccessibleProgress : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleProgress(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::ProgressBar)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? bar().Caption() : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return bar().value(); }
    void setCurrentValue(const QVariant &) override {} // it only tells
    QVariant maximumValue() const override { return bar().maximum(); }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    const GameProgressBar &bar() const { return static_cast<const GameProgressBar &>(*widget()); }
};

/// The tile in the hand.
class AccessibleHeldTile : public QAccessibleWidget
{
public:
    explicit AccessibleHeldTile(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::StaticText)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<const FloatingTile &>(*widget()).Caption().simplified()
                                         : QAccessibleWidget::text(kind);
    }
};

/// The running strip, with the words that run on it.
class AccessibleStrip : public QAccessibleWidget
{
public:
    explicit AccessibleStrip(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::StaticText)
    {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Description)
            return QAccessibleWidget::text(kind);
        constexpr int mostWords = 50; // nobody listens to more
        const MsgScroller &strip = static_cast<const MsgScroller &>(*widget());
        QStringList words;
        for (int i = 1; i <= std::min(strip.ListCount(), mostWords); ++i)
            words << strip.List(i).simplified();
        return words.join(u", "_s);
    }
};

/// A label that shows a mere number.
class AccessibleCount : public QAccessibleWidget
{
public:
    explicit AccessibleCount(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::StaticText)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? spokenCount(static_cast<const QLabel &>(*widget()))
                                         : QAccessibleWidget::text(kind);
    }
};

template <typename Interface> QAccessibleInterface *make(QWidget &widget) { return new Interface(&widget); }
template <QAccessible::Role role> QAccessibleInterface *makeTool(QWidget &widget)
{
    return new AccessibleTool(&widget, role);
}
template <QAccessible::Role role> QAccessibleInterface *makePlain(QWidget &widget)
{
    return new QAccessibleWidget(&widget, role);
}

struct Kind
{
    const char16_t *className;
    QAccessibleInterface *(*make)(QWidget &widget);
};

/// Qt speaks for the labels that show words.
QAccessibleInterface *makeLabel(QWidget &widget)
{
    return widget.property(spokenCaption).isValid() ? new AccessibleCount(&widget) : nullptr;
}

/// A window that is no dialog. Any other widget speaks as Qt lets it.
QAccessibleInterface *makeWindow(QWidget &widget)
{
    return widget.isWindow() ? new QAccessibleWidget(&widget, QAccessible::Window) : nullptr;
}

constexpr Kind kinds[] = {
    {u"PressButton", make<AccessiblePressButton>},
    {u"ClickLabel", makeTool<QAccessible::PushButton>},
    {u"AlphaPanel", makeTool<QAccessible::PushButton>},
    {u"GameProgressBar", make<AccessibleProgress>},
    {u"FloatingTile", make<AccessibleHeldTile>},
    {u"MsgScroller", make<AccessibleStrip>},
    {u"Dropper", makePlain<QAccessible::Grouping>},
    {u"GradientPanel", makePlain<QAccessible::Grouping>},
    {u"PictureBox", [](QWidget &widget) { return static_cast<PictureBox &>(widget).makeAccessible(); }},
    {u"QLabel", makeLabel},
    {u"QWidget", makeWindow},
};

/// Qt asks for the class of an object and then for each of its base classes.
QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    if (object == nullptr || !object->isWidgetType())
        return nullptr;
    for (const Kind &kind : kinds)
        if (className == QStringView(kind.className))
            return kind.make(static_cast<QWidget &>(*object));
    return nullptr;
}

} // namespace

void speakAs(QLabel &label, const QString &pattern) { label.setProperty(spokenCaption, pattern); }

QString spokenCount(const QLabel &label)
{
    return label.text().isEmpty() ? QString() : label.property(spokenCaption).toString().arg(label.text());
}

void installAccessibleTools() { QAccessible::installFactory(interfaceOf); }
