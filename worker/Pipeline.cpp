#include "Pipeline.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace imageworker {

namespace {

constexpr int MaximumWorkers = 16; // beyond, the one JPEG encoder or the memory for tiles is what limits

class Schedule
{
public:
    Schedule(RowSource &source, RowEncoder &encoder)
        : m_source(source)
        , m_encoder(encoder)
    {
        const int chunkHeight = encoder.chunkHeight();
        for (const Strip &strip : source.strips()) {
            m_progress.push_back({strip.tileCount, (strip.height + chunkHeight - 1) / chunkHeight});
        }
        passStripsWithoutTiles();
    }

    /// Works until nothing is left to take, as thread number @p worker.
    void work(int worker)
    {
        std::unique_lock lock(m_mutex);
        while (!m_fault && m_chunkStrip < m_progress.size()) {
            if (mayEncode()) {
                encodeNext(lock);
            } else if (mayDecode()) {
                decodeNext(lock, worker);
            } else {
                m_changed.wait(lock);
            }
        }
    }

    std::optional<Fault> fault() const { return m_fault; }

private:
    struct Progress
    {
        int tilesLeft = 0;
        int chunksLeft = 0;
        int tilesTaken = 0;
        int chunksTaken = 0;
    };

    bool mayEncode() const
    {
        const bool isFree = m_encoder.order() == RowEncoder::Order::AtOnce || m_encoding == 0;
        return isFree && m_progress[m_chunkStrip].tilesLeft == 0;
    }

    bool mayDecode() const
    {
        return m_tileStrip < m_progress.size() &&
               m_tileStrip < m_released + static_cast<std::size_t>(m_source.capacity());
    }

    void encodeNext(std::unique_lock<std::mutex> &lock)
    {
        const std::size_t stripIndex = m_chunkStrip;
        const Strip &strip = m_source.strips()[stripIndex];
        Progress &progress = m_progress[stripIndex];
        const int taken = progress.chunksTaken++;
        const int chunk = m_nextChunk++;
        if (taken + 1 == (strip.height + m_encoder.chunkHeight() - 1) / m_encoder.chunkHeight()) {
            ++m_chunkStrip;
        }
        ++m_encoding;
        lock.unlock();
        const int top = strip.top + taken * m_encoder.chunkHeight();
        const int height = std::min(m_encoder.chunkHeight(), strip.top + strip.height - top);
        const auto result = m_encoder.encodeChunk(chunk, top, height, [&](int y, std::uint8_t *rgba) {
            m_source.readRow(static_cast<int>(stripIndex), y, rgba);
        });
        lock.lock();
        --m_encoding;
        --progress.chunksLeft;
        while (m_released < m_progress.size() && m_progress[m_released].chunksLeft == 0) {
            ++m_released;
        }
        finishStep(result);
    }

    void decodeNext(std::unique_lock<std::mutex> &lock, int worker)
    {
        const std::size_t stripIndex = m_tileStrip;
        Progress &progress = m_progress[stripIndex];
        const int tile = progress.tilesTaken++;
        if (progress.tilesTaken == m_source.strips()[stripIndex].tileCount) {
            ++m_tileStrip;
            passStripsWithoutTiles();
        }
        lock.unlock();
        const auto result = m_source.decodeTile(worker, static_cast<int>(stripIndex), tile);
        lock.lock();
        --progress.tilesLeft;
        finishStep(result);
    }

    void passStripsWithoutTiles()
    {
        while (m_tileStrip < m_progress.size() && m_progress[m_tileStrip].tilesLeft == 0) {
            ++m_tileStrip;
        }
    }

    void finishStep(const Result<void> &result)
    {
        if (!result && !m_fault) {
            m_fault = result.error();
        }
        m_changed.notify_all();
    }

    RowSource &m_source;
    RowEncoder &m_encoder;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Progress> m_progress;
    std::size_t m_tileStrip = 0;  ///< strip of the next tile to decode
    std::size_t m_chunkStrip = 0; ///< strip of the next chunk to encode
    std::size_t m_released = 0;   ///< strips before this one are no longer needed
    int m_nextChunk = 0;
    int m_encoding = 0;
    std::optional<Fault> m_fault;
};

} // namespace

int availableWorkers()
{
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, MaximumWorkers);
}

Result<void> runPipeline(RowSource &source, RowEncoder &encoder, int workers)
{
    if (const auto begun = encoder.begin(); !begun) {
        return begun;
    }
    Schedule schedule(source, encoder);
    {
        std::vector<std::jthread> threads;
        for (int worker = 1; worker < workers; ++worker) {
            threads.emplace_back([&schedule, worker] { schedule.work(worker); });
        }
        schedule.work(0);
    }
    if (const auto fault = schedule.fault()) {
        return tl::unexpected(*fault);
    }
    return encoder.finish();
}

} // namespace imageworker
