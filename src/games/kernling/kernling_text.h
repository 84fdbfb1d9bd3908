// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

#include <functional>
#include <vector>

/// The text of the stem game, the control `RTF`: rich text in which runs of letters are marked, painted and
/// found. It takes plain text only from clipboard and drops, loads nothing that a text names, and can be
/// locked: then letters can be marked and nothing else.
class KernlingText : public QTextEdit
{
    Q_OBJECT

public:
    /// A run of letters: positions of the document.
    struct Run
    {
        int start;
        int length;
    };

    static constexpr int smallestLetters = 9; ///< pixels
    static constexpr int largestLetters = 96; ///< pixels

    explicit KernlingText(QWidget *parent = nullptr);

    /// While it is locked nothing can be typed, dropped or undone, and the caret is hidden from the mouse.
    void setLocked(bool locked);
    bool isLocked() const { return locked_; }

    bool isEmpty() const { return document()->isEmpty(); }
    QString text() const { return toPlainText(); }
    /// The marked letters; a line end is a "\n".
    QString selectedText() const;
    Run selection() const;
    void select(const Run &run);

    /// Replaces the whole text; one step of undo. Lines that no layout could bear are folded.
    void replaceText(const QString &text);
    /// The whole text in that font, of the size that is shown.
    void setTextFont(const QString &family);

    /// Gives the runs (in the order of the text) a background and the letters a colour that is read on it, as
    /// one step of undo; with `goesOnFrom` as a part of the last step.
    void paintRuns(const std::vector<Run> &runs, const QColor &background, bool goesOnFrom = false);
    /// Takes every background within `run` away. What is painted outside of it stays, and so does what is
    /// seen of the text. One step of undo; with `goesOnFrom` a part of the last step.
    void unpaint(const Run &run, bool goesOnFrom = false);
    void unpaintAll();

    /// Letters larger (positive) or smaller by so many steps.
    void zoomLetters(int steps);
    /// The letters' size, in pixels, for a zoom of 0; the zoom stays.
    void setLetterSize(int pixels);

    QVariant loadResource(int type, const QUrl &name) override;

signals:
    /// A marking has come to its end, by mouse, finger or keys. It may be empty.
    void marked();
    /// A right press, or a finger that rests, in this widget's pixels.
    void rightPressed(const QPoint &position);
    void fileDropped(const QString &path);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    class KeptView;

    void hideCaret();
    void typeUnpainted(const std::function<void()> &type);
    void applyLetterSize();

    bool locked_ = false;
    int letterSize_ = 16; ///< pixels
    int zoom_ = 0;        ///< steps
    Run beforeShift_{0, 0};
    bool dropping_ = false;
};
