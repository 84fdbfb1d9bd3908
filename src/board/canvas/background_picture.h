// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Canvas;
struct Ground;
struct MainControls;

/// The picture behind the board: from the setting, or from a file dropped on the window.
class BackgroundPicture
{
public:
    BackgroundPicture(Ground &ground, const MainControls &controls, Canvas &canvas);

    /// Loads the picture named by the setting `BackgroundPicture`. A file that is missing is skipped in
    /// silence, an unreadable one is logged; what is wrong with it comes back.
    QString loadFromSetting();
    /// The setting has been changed: its picture replaces the present one, and the user is told what is wrong
    /// with it.
    void takeSetting();
    /// A dropped file (native path) replaces the picture; the setting stays. Tells the user what is wrong
    /// with a file that is no picture.
    void drop(const QString &nativePath);
    /// Tells the user what is wrong with a picture.
    void tell(const QString &trouble);
    /// Back to the plain colour.
    void remove();

    /// The text behind the last "." of the path's name in upper case; the whole name if it has none.
    static QString extension(const QString &path);
    /// Whether that is one of the formats that may be dropped: JPG, GIF or BMP.
    static bool isPicture(const QString &path);

private:
    void show(const QString &nativePath);
    QString troubleWith(const QString &nativePath);

    Ground &ground_;
    const MainControls &controls_;
    Canvas &canvas_;
};
