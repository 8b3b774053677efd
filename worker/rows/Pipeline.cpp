#include "Pipeline.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace imageworker {

namespace {

constexpr int MaximumWorkers = 16; // two strips have too few tiles for more

class Schedule
{
public:
    Schedule(RowSource &source, RowEncoder &encoder)
        : m_source(source)
        , m_encoder(encoder)
    {
        for (const Strip &strip : source.strips()) {
            m_progress.push_back({strip.tileCount, 0});
        }
        // One strip more than a chunk may need: the next can be decoded while the last is read.
        m_capacity = layOutChunks() + 1;
        source.reserveStrips(static_cast<int>(m_capacity));
        skipDecoded();
    }

    /// Works until nothing is left to take, as thread number @p worker.
    void work(int worker)
    {
        std::unique_lock lock(m_mutex);
        while (!m_fault && m_nextChunk < m_chunks.size()) {
            if (mayEncode()) {
                encodeNext(lock);
            } else if (mayDecode()) {
                decodeNext(lock, worker);
            } else {
                m_changed.wait(lock);
            }
        }
    }

    std::optional<ImageWorkerFault> fault() const { return m_fault; }

private:
    struct Progress
    {
        int tilesLeft = 0;
        int chunksLeft = 0; ///< that have rows in the strip
        int tilesTaken = 0;
    };
    struct Chunk
    {
        int top = 0;
        int height = 0;
        std::size_t firstStrip = 0;
        std::size_t lastStrip = 0;
    };

    /// Gives the largest number of strips that a chunk has rows in.
    std::size_t layOutChunks()
    {
        const std::vector<Strip> &strips = m_source.strips();
        const auto hasRow = [&strips](std::size_t strip, int y) {
            return y < strips[strip].top + strips[strip].height;
        };
        const int height = m_source.size().height;
        std::size_t most = 1;
        Chunk chunk;
        for (; chunk.top < height; chunk.top += chunk.height) {
            chunk.height = std::min(m_encoder.chunkHeight(), height - chunk.top);
            while (!hasRow(chunk.lastStrip, chunk.top)) {
                ++chunk.lastStrip;
            }
            chunk.firstStrip = chunk.lastStrip;
            while (!hasRow(chunk.lastStrip, chunk.top + chunk.height - 1)) {
                ++chunk.lastStrip;
            }
            for (std::size_t strip = chunk.firstStrip; strip <= chunk.lastStrip; ++strip) {
                ++m_progress[strip].chunksLeft;
            }
            m_chunks.push_back(chunk);
            most = std::max(most, chunk.lastStrip - chunk.firstStrip + 1);
        }
        return most;
    }

    bool mayEncode() const
    {
        const bool isFree = m_encoder.order() == RowEncoder::Order::AtOnce || m_encoding == 0;
        return isFree && m_chunks[m_nextChunk].lastStrip < m_decoded;
    }

    bool mayDecode() const
    {
        return m_tileStrip < m_progress.size() && m_tileStrip < m_released + m_capacity;
    }

    void encodeNext(std::unique_lock<std::mutex> &lock)
    {
        const std::size_t index = m_nextChunk++;
        const Chunk &chunk = m_chunks[index];
        ++m_encoding;
        lock.unlock();
        std::size_t strip = chunk.firstStrip;
        const auto readRow = [&](int y, std::uint8_t *rgba) {
            while (y >= m_source.strips()[strip].top + m_source.strips()[strip].height) {
                ++strip; // rows are read from the top to the bottom
            }
            m_source.readRow(static_cast<int>(strip), y, rgba);
        };
        const auto result = m_encoder.encodeChunk(static_cast<int>(index), chunk.top, chunk.height, readRow);
        lock.lock();
        --m_encoding;
        for (std::size_t read = chunk.firstStrip; read <= chunk.lastStrip; ++read) {
            --m_progress[read].chunksLeft;
        }
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
        }
        lock.unlock();
        const auto result = m_source.decodeTile(worker, static_cast<int>(stripIndex), tile);
        lock.lock();
        --progress.tilesLeft;
        skipDecoded();
        finishStep(result);
    }

    void skipDecoded()
    {
        while (m_decoded < m_progress.size() && m_progress[m_decoded].tilesLeft == 0) {
            ++m_decoded;
        }
        m_tileStrip = std::max(m_tileStrip, m_decoded); // some strips have no tiles
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
    std::vector<Progress> m_progress; ///< by strip
    std::vector<Chunk> m_chunks;
    std::size_t m_capacity = 0;  ///< strips in memory at once
    std::size_t m_tileStrip = 0; ///< strip of the next tile to decode
    std::size_t m_decoded = 0;   ///< strips before this one are decoded
    std::size_t m_released = 0;  ///< strips before this one are no longer needed
    std::size_t m_nextChunk = 0;
    int m_encoding = 0;
    std::optional<ImageWorkerFault> m_fault;
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
        try {
            for (int worker = 1; worker < workers; ++worker) {
                threads.emplace_back([&schedule, worker] { schedule.work(worker); });
            }
        } catch (const std::system_error &) { // no more threads: the existing ones do the work
        }
        schedule.work(0);
    }
    if (const auto fault = schedule.fault()) {
        return tl::unexpected(*fault);
    }
    return encoder.finish();
}

} // namespace imageworker
