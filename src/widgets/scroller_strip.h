// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>

#include <functional>
#include <vector>

/// One item of the running strip. The places are pixels from the strip's start; `Right` counts the separator
/// behind the item in, but for the last one.
struct cMessageData
{
    QString Text;
    int Colour = -1; ///< 0x00BBGGRR, or -1 for the widget's own colour
    int Width = 0;   ///< of `Text` alone
    int Left = 0;
    int Right = 0;
};

/// The arithmetic of the running strip, without a window: the items in their order, where each lies on the
/// virtual strip, which of them a widget of a given width shows at the present offset, and what lies under a
/// point of it. Item indexes are 1-based; an index that is not there throws RuntimeError 9. All lengths are
/// pixels.
class ScrollerStrip
{
public:
    static constexpr int restOffset =
        -250; ///< of a stopped strip: new text enters that far from the left edge
    static constexpr int hotSpotLimit = 1024;
    static constexpr int none = -1;

    using TextWidth = std::function<int(const QString &)>;

    struct HotSpot
    {
        int item;
        int left;
        int right;
    };
    /// A visible item: `item` is 0 for the waiting text of an empty strip.
    struct Piece
    {
        int item;
        QString text;
        int colour;
        int left;
        int width;
    };

    explicit ScrollerStrip(TextWidth textWidth);

    // Items: each change measures the strip again.
    /// A text of blanks is not added. `key` counts if it is not blank (case ignored; RuntimeError 457 if it
    /// is taken), `before` if it is above 0: the item in front of which the new one goes.
    void AddItem(const QString &text, const QString &key = {}, int before = 0);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return static_cast<int>(items_.size()); }
    /// The first item with exactly that text, or -1.
    int FindItem(const QString &text) const;
    int FindKey(const QString &key) const;
    const cMessageData &item(int index) const;
    void setItem(int index, const cMessageData &data);
    void setText(int index, const QString &text);
    /// Changes nothing of the layout; seen from the next draw on.
    void setColour(int index, int colour);

    // Layout
    void setSeperator(const QString &text);
    QString Seperator() const { return seperator_; }
    /// The separator as it is drawn: a single blank for an empty one.
    QString SeparatorText() const;
    int SeparatorWidth() const { return separatorWidth_; }
    int StripWidth() const { return stripWidth_; }
    /// Measures every text anew, after a change of the font.
    void measureAll();

    // Run
    bool Running() const { return running_; }
    int Offset() const { return offset_; }
    void setOffset(int offset) { offset_ = offset; }
    /// The scroll decision for a widget of that width; returns whether the strip runs. A strip that does not
    /// run is put back to its rest.
    bool decide(bool forceScroll, bool autoScroll, int widgetWidth);
    /// After how many pixels the ring begins again.
    int cycleLength() const { return running_ ? stripWidth_ + separatorWidth_ : stripWidth_; }

    // Draw
    /// Brings the offset into range and finds what a widget of that width shows. The cost depends on what is
    /// visible, not on the number of items. A strip that does not run is shown from its start.
    void draw(int widgetWidth);
    const std::vector<Piece> &pieces() const { return pieces_; }
    const std::vector<HotSpot> &hotSpots() const { return hotSpots_; }
    /// Where the rest of a strip that does not run begins, which is cleared with white; the widget's width if
    /// there is none.
    int restLeft() const { return restLeft_; }
    /// The item of the last draw at pixel `x`, or -1.
    int hotSpotAt(int x) const;

private:
    struct Entry
    {
        cMessageData data;
        QString key; ///< folded, or empty
    };

    void checkIndex(int index) const;
    int widthOf(const QString &text) const;
    void measureFrom(std::size_t first);
    void bringIntoRange();
    void drawWaitingText(int widgetWidth);
    void drawItems(int widgetWidth, int offset);

    TextWidth textWidth_;
    std::vector<Entry> items_;
    QSet<QString> keys_;
    QString seperator_;
    int separatorWidth_ = 0;
    int stripWidth_ = 0;
    int offset_ = restOffset;
    bool running_ = false;
    std::vector<Piece> pieces_;
    std::vector<HotSpot> hotSpots_;
    int restLeft_ = 0;
};
