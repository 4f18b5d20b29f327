// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ThumbnailQueue.h"

#include "project/Thumbnail.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t maximumWaitingPerWorker = 16;

} // namespace

ThumbnailQueue::~ThumbnailQueue()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_jobs.clear();
    }
    joinWorkers();
}

void ThumbnailQueue::add(const QByteArray& base64)
{
    m_images.emplace_back();
    if (base64.isEmpty())
        return;
    if (m_workers.empty())
        startWorkers();

    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_jobs.size() >= m_workers.size() * maximumWaitingPerWorker) {
        lock.unlock();
        m_images.back() = Thumbnail::decode(base64);
        return;
    }
    m_jobs.push_back({base64, &m_images.back()});
    lock.unlock();
    m_changed.notify_one();
}

std::deque<QImage> ThumbnailQueue::takeImages()
{
    for (Job job; takeJob(job, false);)
        *job.image = Thumbnail::decode(job.base64);
    joinWorkers();
    return std::exchange(m_images, {});
}

void ThumbnailQueue::startWorkers()
{
    const unsigned others = std::max(1U, std::thread::hardware_concurrency()) - 1;
    for (unsigned i = 0; i < others; ++i)
        m_workers.emplace_back([this] { work(); });
}

void ThumbnailQueue::joinWorkers()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_complete = true;
    }
    m_changed.notify_all();
    for (std::thread& worker : m_workers)
        worker.join();
    m_workers.clear();
    m_complete = false;
}

void ThumbnailQueue::work()
{
    for (Job job; takeJob(job, true);)
        *job.image = Thumbnail::decode(job.base64);
}

bool ThumbnailQueue::takeJob(Job& job, bool mayWait)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (mayWait)
        m_changed.wait(lock, [this] { return m_complete || !m_jobs.empty(); });
    if (m_jobs.empty())
        return false;
    job = std::move(m_jobs.front());
    m_jobs.pop_front();
    return true;
}
