// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/web/colour_swatch.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

#include <array>

class QBoxLayout;

/// The face of the window `FrmSaveAsWeb`: its controls as a designer drew them, and no logic.
class WebView : public QWidget
{
    Q_OBJECT

public:
    explicit WebView(QWidget *parent = nullptr);

    QLineEdit *TxtInfile;
    QLineEdit *txtoutfile;
    QPushButton *Command1;
    QLineEdit *TextWebTitle;
    QCheckBox *ChkAddDate;
    QCheckBox *ChkMoveTitle;
    QCheckBox *ChkKeepTitle;
    QLineEdit *TxtAuthor;
    QLineEdit *TxtEmail;
    QCheckBox *chkAddBGPic;
    QLineEdit *txtbgpic;
    QPushButton *Command5;
    QCheckBox *ChkStripExt;
    QCheckBox *ChkMovePic;
    QLineEdit *LimitedPosX;
    QLineEdit *LimitedPosY;
    QCheckBox *ChkMoveable;
    QCheckBox *ChkUseBorder;
    std::array<QRadioButton *, 6> OptFontSize;
    std::array<QRadioButton *, 2> Option2;
    ColourSwatch *Picture1;
    ColourSwatch *Picture2;
    ColourSwatch *Picture3;
    QPushButton *cmdMakeWebPage;
    QPushButton *cmdViewWebpage;
    QPushButton *cmdClose;
    QPlainTextEdit *TxtMainJava; ///< never shown: the script that every page gets

private:
    QWidget *makeFiles();
    QWidget *makeTitle();
    QWidget *makePicture();
    QWidget *makeTiles();
    QWidget *makeLetters();
    QWidget *makeColours();
    QCheckBox *makeCheck(const char *name, const QString &caption, const QString &spoken,
                         const QString &tip = {});
    QRadioButton *makeOption(const QString &name, const QString &caption, const QString &spoken);
    QPushButton *makeDots(const char *name, const QString &tip);
    QLineEdit *makePlace(const char *name, const QString &caption);
    void addSwatch(QBoxLayout &line, ColourSwatch *&swatch, const char *name, const QString &caption);
};
