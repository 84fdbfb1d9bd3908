// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

#include <memory>

class QApplication;

/// The size of the whole program is Qt's scale factor, which has to be known before the application object is
/// made. A factor that the user has set in the environment takes the place of "automatisch".
class ProgramScale
{
public:
    ProgramScale();

    /// Makes the application object at the size that `wish` (of `program_size`) comes to on the primary
    /// screen. Only that screen tells, so where the first guess was wrong the object is made once more.
    std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, int wish);
    /// The size of the application object made last, in percent.
    int percent() const { return percent_; }
    /// The primary screen, in pixels as they are at 100 %.
    QSize screen() const;

private:
    std::unique_ptr<QApplication> make(int &argc, char **argv, int percent);

    QByteArray own_; ///< the user's factor
    int percent_ = 100;
};
