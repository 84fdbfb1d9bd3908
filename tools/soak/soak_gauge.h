// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <algorithm>
#include <malloc.h>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // the compiler brings no header for it
#endif

/// What this process holds at one moment.
struct SoakSample
{
    qint64 memoryKb = 0; ///< allocated and not freed: what is resident grows with the allocator's own ways
    qint64 files = 0;    ///< open ones
    qint64 threads = 0;

    static SoakSample now()
    {
        SoakSample sample;
        sample.memoryKb = allocated() / 1024;
        QFile status(QStringLiteral("/proc/self/status"));
        if (status.open(QIODevice::ReadOnly))
            for (const QByteArray &line : status.readAll().split('\n')) {
                const QList<QByteArray> words = line.simplified().split(' ');
                if (words.first() == "Threads:")
                    sample.threads = words.at(1).toLongLong();
            }
        const auto all = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
        sample.files = QDir(QStringLiteral("/proc/self/fd")).entryList(all).size();
        return sample;
    }

private:
    static qint64 allocated()
    {
#ifdef __SANITIZE_ADDRESS__
        return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
        const struct mallinfo2 heap = mallinfo2();
        return static_cast<qint64>(heap.uordblks + heap.hblkhd);
#endif
    }
};

/// Whether the samples of a long run stay level: the last quarter is compared with the second, because caches
/// fill in the first.
class SoakGauge
{
public:
    void add(const SoakSample &sample) { samples_.push_back(sample); }

    /// What grows, or nothing. Says nothing of fewer than sixty samples:
    /// the heap goes up and down with what a life has opened.
    QString growth() const
    {
        if (samples_.size() < 60)
            return {};
        const auto grows = [this](qint64 SoakSample::*value, qint64 slack, const char *name) {
            const qint64 before = median(samples_.size() / 4, samples_.size() / 2, value);
            const qint64 after = median(samples_.size() * 3 / 4, samples_.size(), value);
            return after <= before + slack
                       ? QString()
                       : QStringLiteral("%1 grow from %2 to %3; ")
                             .arg(QLatin1String(name), QString::number(before), QString::number(after));
        };
        const qint64 memory = median(samples_.size() / 4, samples_.size() / 2, &SoakSample::memoryKb);
        // Those of pictures and letters take long to fill, and the toolkit never forgets a picture's name:
        // some forty bytes an event, where every life has pictures of its own.
        constexpr qint64 caches = 12 * 1024;
        return grows(&SoakSample::memoryKb, caches + memory / 10, "kilobytes of memory") +
               grows(&SoakSample::files, 2, "open files") + grows(&SoakSample::threads, 1, "threads");
    }

private:
    qint64 median(std::size_t from, std::size_t to, qint64 SoakSample::*value) const
    {
        std::vector<qint64> values;
        for (std::size_t i = from; i < to; ++i)
            values.push_back(samples_[i].*value);
        std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
        return values[values.size() / 2];
    }

    std::vector<SoakSample> samples_;
};
