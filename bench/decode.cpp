// decode SOURCE [COUNT]: decodes every tile of a photo on all processors and throws the pictures away: no
// conversion can be faster. COUNT times, one after another.

#include "CodecConfiguration.h"
#include "ItemData.h"
#include "PhotoReader.h"
#include "Pipeline.h"
#include "TileDecoder.h"

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <thread>

namespace {

using namespace imageworker;

class TileQueue
{
public:
    TileQueue(const Source &source, const TileGrid &grid)
        : m_source(source)
        , m_grid(grid)
    {}

    void decodeUntilEmpty()
    {
        std::unique_ptr<TileDecoder> decoder;
        for (std::size_t index = m_next++; index < m_grid.tiles.size(); index = m_next++) {
            const CodedPicture &tile = m_grid.tiles[index];
            if (!decoder || !decoder->suits(tile)) {
                decoder = TileDecoder::create(tile);
            }
            const auto bytes = m_source.read(tile.data);
            if (!decoder || !bytes || !decoder->decode(*bytes, m_grid.tile)) {
                m_hasFailed = true;
            }
        }
    }
    bool hasFailed() const { return m_hasFailed; }

private:
    const Source &m_source;
    const TileGrid &m_grid;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<bool> m_hasFailed = false;
};

bool decodeOnce(const Source &source, const TileGrid &grid)
{
    TileQueue queue(source, grid);
    {
        std::vector<std::jthread> threads;
        threads.reserve(static_cast<std::size_t>(availableWorkers()));
        for (int worker = 0; worker < availableWorkers(); ++worker) {
            threads.emplace_back([&queue] { queue.decodeUntilEmpty(); });
        }
    }
    return !queue.hasFailed();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const int descriptor =
        argumentCount >= 2 && loadDecoders() ? ::open(arguments[1], O_RDONLY | O_CLOEXEC) : -1;
    const auto source = sourceOfFile(descriptor);
    const auto photo = source ? readPhoto(*source) : unreadable();
    const auto *picture = photo ? std::get_if<Picture>(&photo->picture) : nullptr;
    const auto *grid = picture != nullptr ? std::get_if<TileGrid>(&picture->content) : nullptr;
    if (grid == nullptr) {
        return EXIT_FAILURE;
    }
    const int count = argumentCount > 2 ? std::atoi(arguments[2]) : 1;
    for (int done = 0; done < count; ++done) {
        if (!decodeOnce(*source, *grid)) {
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
