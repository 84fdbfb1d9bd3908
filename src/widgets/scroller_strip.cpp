// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/scroller_strip.h"

#include "platform/runtime_error.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>

namespace {

QString waitingText() { return QStringLiteral("Message Scroller"); }

int checkedSum(int a, int b)
{
    const long long sum = static_cast<long long>(a) + b;
    if (sum > std::numeric_limits<int>::max())
        throw RuntimeError::of(RuntimeError::Overflow);
    return static_cast<int>(sum);
}

} // namespace

ScrollerStrip::ScrollerStrip(TextWidth textWidth)
    : textWidth_(std::move(textWidth))
    , seperator_(QStringLiteral("·"))
{
    measureAll();
}

void ScrollerStrip::checkIndex(int index) const
{
    if (index < 1 || index > ListCount())
        throw RuntimeError::of(RuntimeError::SubscriptOutOfRange);
}

void ScrollerStrip::AddItem(const QString &text, const QString &key, int before)
{
    if (Trim(text).isEmpty())
        return;
    if (before > 0)
        checkIndex(before);
    const QString folded = Trim(key).isEmpty() ? QString() : UCase(key);
    if (!folded.isEmpty() && keys_.contains(folded))
        throw RuntimeError::of(RuntimeError::DuplicateKey);

    Entry entry;
    entry.data.Text = text;
    entry.data.Width = widthOf(text);
    entry.key = folded;
    const std::size_t place = before > 0 ? static_cast<std::size_t>(before - 1) : items_.size();
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(place), std::move(entry));
    if (!folded.isEmpty())
        keys_.insert(folded);
    // The item in front of the new one may have been the last, without a separator behind it.
    measureFrom(place == 0 ? 0 : place - 1);
}

void ScrollerStrip::RemoveItem(int index)
{
    checkIndex(index);
    const auto place = items_.begin() + (index - 1);
    keys_.remove(place->key);
    items_.erase(place);
    measureFrom(index >= 2 ? static_cast<std::size_t>(index - 2) : 0);
}

void ScrollerStrip::Clear()
{
    items_.clear();
    keys_.clear();
    offset_ = restOffset;
    measureFrom(0);
}

int ScrollerStrip::FindItem(const QString &text) const
{
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const Entry &entry) { return entry.data.Text == text; });
    return found == items_.end() ? none : static_cast<int>(found - items_.begin()) + 1;
}

int ScrollerStrip::FindKey(const QString &key) const
{
    const QString folded = UCase(key);
    if (!keys_.contains(folded))
        return none;
    const auto found =
        std::find_if(items_.begin(), items_.end(), [&](const Entry &entry) { return entry.key == folded; });
    return static_cast<int>(found - items_.begin()) + 1;
}

const cMessageData &ScrollerStrip::item(int index) const
{
    checkIndex(index);
    return items_[static_cast<std::size_t>(index - 1)].data;
}

void ScrollerStrip::setItem(int index, const cMessageData &data)
{
    setText(index, data.Text);
    setColour(index, data.Colour);
}

void ScrollerStrip::setText(int index, const QString &text)
{
    checkIndex(index);
    const auto place = static_cast<std::size_t>(index - 1);
    items_[place].data.Text = text;
    items_[place].data.Width = widthOf(text);
    measureFrom(place);
}

void ScrollerStrip::setColour(int index, int colour)
{
    checkIndex(index);
    items_[static_cast<std::size_t>(index - 1)].data.Colour = colour;
}

void ScrollerStrip::setSeperator(const QString &text)
{
    seperator_ = text;
    separatorWidth_ = textWidth_(SeparatorText());
    measureFrom(0);
}

QString ScrollerStrip::SeparatorText() const
{
    return seperator_.isEmpty() ? QStringLiteral(" ") : seperator_;
}

int ScrollerStrip::widthOf(const QString &text) const { return textWidth_(CleanText(text)); }

void ScrollerStrip::measureAll()
{
    separatorWidth_ = textWidth_(SeparatorText());
    for (Entry &entry : items_)
        entry.data.Width = widthOf(entry.data.Text);
    measureFrom(0);
}

void ScrollerStrip::measureFrom(std::size_t first)
{
    if (items_.empty()) {
        stripWidth_ = textWidth_(waitingText());
        return;
    }
    stripWidth_ = first == 0 ? 0 : items_[first - 1].data.Right;
    for (std::size_t place = first; place < items_.size(); ++place) {
        cMessageData &data = items_[place].data;
        data.Left = stripWidth_;
        stripWidth_ = checkedSum(stripWidth_, data.Width);
        if (place + 1 < items_.size())
            stripWidth_ = checkedSum(stripWidth_, separatorWidth_);
        data.Right = stripWidth_;
    }
}

bool ScrollerStrip::decide(bool forceScroll, bool autoScroll, int widgetWidth)
{
    running_ = !items_.empty() && (forceScroll || (autoScroll && stripWidth_ > widgetWidth));
    if (!running_)
        offset_ = restOffset;
    return running_;
}

void ScrollerStrip::bringIntoRange()
{
    // An offset below 0 stays while the strip runs: the text is on its way in.
    const int cycle = cycleLength();
    if (cycle > 0 && offset_ > cycle)
        offset_ = (offset_ - 1) % cycle + 1;
}

void ScrollerStrip::draw(int widgetWidth)
{
    pieces_.clear();
    hotSpots_.clear();
    restLeft_ = widgetWidth;
    if (running_)
        bringIntoRange();
    if (items_.empty())
        drawWaitingText(widgetWidth);
    else
        drawItems(widgetWidth, running_ ? offset_ : 0);
}

void ScrollerStrip::drawWaitingText(int widgetWidth)
{
    pieces_.push_back({0, waitingText(), -1, 0, stripWidth_});
    restLeft_ = std::min(widgetWidth, stripWidth_ + separatorWidth_);
}

void ScrollerStrip::drawItems(int widgetWidth, int offset)
{
    const auto first = std::partition_point(
        items_.begin(), items_.end(), [offset](const Entry &entry) { return entry.data.Right <= offset; });
    // In the gap behind the last item the ring goes on with the first.
    std::size_t place = first == items_.end() ? 0 : static_cast<std::size_t>(first - items_.begin());
    int left = first == items_.end() ? cycleLength() - offset : first->data.Left - offset;
    const bool ring = running_ && cycleLength() > 0;

    while (left < widgetWidth) {
        const cMessageData &data = items_[place].data;
        const int item = static_cast<int>(place) + 1;
        pieces_.push_back({item, CleanText(data.Text), data.Colour, left, data.Width});
        if (hotSpots_.size() < hotSpotLimit)
            hotSpots_.push_back({item, left, left + data.Width});
        left = checkedSum(left, data.Width + separatorWidth_);
        if (++place < items_.size())
            continue;
        if (!ring) {
            restLeft_ = std::min(left, widgetWidth);
            break;
        }
        place = 0;
    }
}

int ScrollerStrip::hotSpotAt(int x) const
{
    const auto found = std::find_if(hotSpots_.begin(), hotSpots_.end(),
                                    [x](const HotSpot &spot) { return spot.left <= x && x <= spot.right; });
    return found == hotSpots_.end() ? none : found->item;
}
