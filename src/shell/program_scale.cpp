// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program_scale.h"

#include "platform/program_size.h"

#include <QApplication>
#include <QScreen>

#include <cmath>

namespace {

constexpr auto variable = "QT_SCALE_FACTOR";

} // namespace

ProgramScale::ProgramScale()
    : own_(qgetenv(variable))
{}

std::unique_ptr<QApplication> ProgramScale::makeApplication(int &argc, char **argv, int wish)
{
    const double own = own_.toDouble();
    if (wish == program_size::automatic && own > 0) {
        qputenv(variable, own_);
        percent_ = static_cast<int>(std::lround(own * 100));
        return std::make_unique<QApplication>(argc, argv);
    }
    const int guess = wish == program_size::automatic ? program_size::smallest : wish;
    std::unique_ptr<QApplication> application = make(argc, argv, guess);
    const int percent = program_size::onScreen(wish, screen());
    if (percent != guess) {
        application.reset();
        application = make(argc, argv, percent);
    }
    return application;
}

QSize ProgramScale::screen() const
{
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary == nullptr ? QSize() : primary->size() * percent_ / 100;
}

std::unique_ptr<QApplication> ProgramScale::make(int &argc, char **argv, int percent)
{
    percent_ = percent;
    if (percent == 100)
        qunsetenv(variable);
    else
        qputenv(variable, QByteArray::number(percent / 100.0));
    return std::make_unique<QApplication>(argc, argv);
}
