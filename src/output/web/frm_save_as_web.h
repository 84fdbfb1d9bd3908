// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class WebView;
class QLineEdit;
struct Ground;
struct WebPage;

/// The window "Sitzung speichern als Webseite": collects what a page is to be like, makes it, and shows it in
/// the browser. Closing it keeps the wishes for the next time.
class FrmSaveAsWeb : public QDialog
{
    Q_OBJECT

public:
    /// `session` is the path (stored form) of the session in use, or empty; `pageName` the name that its page
    /// gets beside it.
    FrmSaveAsWeb(Ground &ground, const QString &session, const QString &pageName, QWidget *parent = nullptr);

    /// Shows the window modally until it is closed.
    void edit();

    /// The button "Schließen", Esc and the close item. Nothing is kept if the whole program closes.
    void reject() override { cmdClose_Click(); }

private:
    void connectButtons();
    void connectSwatches();
    void connectDrops();
    void cmdMakeWebPage_Click();
    void cmdViewWebpage_Click();
    void cmdClose_Click();
    void Command1_Click();
    void Command5_Click();
    bool isReadyToMake();
    bool checkSession(const QString &path);
    bool checkPageName(const QString &path);
    bool checkPicture(const QString &path);
    bool warn(const QString &title, const QString &text);
    QString sessionPath() const;
    QString pagePath() const;
    WebPage wishes() const;
    void makePage();

    Ground &ground_;
    WebView *view_;
};
