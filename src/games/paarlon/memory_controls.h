// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

#include <array>

class Backdrop;
class MemoryCard;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

/// The card game's window as a designer drew it: its named controls, without logic. Lengths are twips of a
/// window of 8025 by 6075, and everything grows with the window in these proportions.
struct MemoryControls
{
    static constexpr QSize designSize{8025, 6075};
    static constexpr int twipsPerPixel = 15;
    static constexpr int coverWidth = 6100;

    std::array<MemoryCard *, 36> picMorphemeCard{};
    QWidget *picCover = nullptr;
    Backdrop *Picture1 = nullptr;
    QPushButton *Anfangen = nullptr;  ///< `cmdCommand(0)`
    QPushButton *Abbrechen = nullptr; ///< `cmdCommand(3)`
    QLabel *Label2 = nullptr;
    QLabel *LblCurrentScore = nullptr;
    QLabel *Label1 = nullptr;
    std::array<QRadioButton *, 3> OptMorphemeType{};
    QPushButton *Command3 = nullptr;
    QLabel *lblNotice = nullptr; ///< what is wrong with the list
    // Never seen
    QPushButton *Command1 = nullptr;
    QPushButton *Command2 = nullptr;
    std::array<QLineEdit *, 6> txtScores{}; ///< 2 to 5

    /// Where the window's own lengths lie on the screen.
    struct Scale
    {
        double pixelsPerTwip = 1.0 / twipsPerPixel;
        QPoint corner; ///< pixels; what the window has more than these proportions lies round the cards

        int pixels(int twips) const { return static_cast<int>(twips * pixelsPerTwip); }
        QRect pixels(const QRect &twips) const;
    };
    static Scale scaleFor(const QSize &window);

    /// A window as large as `room` (pixels) lets it be, at most twice the size of the design.
    static QSize openingSize(const QSize &room);
};

MemoryControls makeMemoryControls(QWidget *form);
void layOutMemoryControls(const MemoryControls &controls, const QSize &window);
