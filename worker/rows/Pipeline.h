#pragma once

#include "RowEncoder.h"
#include "RowSource.h"

namespace imageworker {

/// Threads worth starting: one for each processor this process may use.
int availableWorkers();

/// Decodes @p source and encodes it with @p encoder on @p workers threads, the calling one among them. Each
/// encodes a chunk if one is decoded; else it decodes the next tile if the strip buffer has room; else it
/// waits. Gives the first fault.
Result<void> runPipeline(RowSource &source, RowEncoder &encoder, int workers);

} // namespace imageworker
