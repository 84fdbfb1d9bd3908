// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class StoreList;
struct Ground;
struct MainControls;

/// The lists of prefixes, stems and suffixes that open above the filter buttons. Of lists that stand open
/// together none covers another.
class MorphemeLists : public QObject
{
    Q_OBJECT

public:
    MorphemeLists(Ground &ground, const MainControls &controls, QObject *parent = nullptr);

    /// Right: opens or closes the list of `index` (3: all of them). Left: closes all.
    void OptType_MouseDown(int index, Qt::MouseButton button);
    /// If any list is open all are closed, else all are opened.
    void ToggleAllMorphemeLists();
    void hideAll();
    bool isAnyOpen() const;
    /// The list of `index` (0 to 2) lies over the board, as if it had been open all the time.
    void show(int index);
    /// The window has another size: open lists stand over their buttons and the band again.
    void placeOpen();
    /// A filter was chosen: a note if the board has nothing that it shows.
    void tellIfNone(int index);

signals:
    /// A left press on a filter button: the menus are to be made anew.
    void menuRestoreWanted();

private:
    StoreList *list(int index) const;
    void playOpened();

    Ground &ground_;
    const MainControls &controls_;
};
