// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

/// Decodes thumbnails on the other cores while its owner goes on.
///
///     ThumbnailQueue queue;
///     for (const ProjectRecord& record : records)
///         queue.add(record.imageData);
///     const std::deque<QImage> images = queue.takeImages(); // one for each call of add, in order
class ThumbnailQueue
{
public:
    ThumbnailQueue() = default;
    ~ThumbnailQueue();
    Q_DISABLE_COPY(ThumbnailQueue)

    /// Puts a picture in (see Thumbnail.h). When the others cannot keep up, decodes one itself, so
    /// that little waits in memory.
    void add(const QByteArray& base64);

    /// Decodes what is left, together with the others, and gives every image in the order of `add`;
    /// a null image for what is no picture. The queue is empty then.
    std::deque<QImage> takeImages();

private:
    struct Job
    {
        QByteArray base64;
        QImage* image;
    };

    void startWorkers();
    void joinWorkers();
    void work();
    bool takeJob(Job& job, bool mayWait);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    /// A deque, because its elements stay where they are while it grows.
    std::deque<QImage> m_images;
    std::vector<std::thread> m_workers;
    bool m_complete = false;
};
