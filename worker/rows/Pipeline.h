#pragma once

#include "RowEncoder.h"
#include "RowSource.h"

namespace imageworker {

/// Threads worth starting: one for each processor this process may use.
int availableWorkers();

/// Decodes @p source and encodes it to @p encoder on @p workers threads, the calling one among them. Each
/// takes whatever is possible first: a chunk of a strip that is ready, else the next tile if its strip has
/// room, so that few strips are held and nobody waits while there is work. Gives the first fault.
Result<void> runPipeline(RowSource &source, RowEncoder &encoder, int workers);

} // namespace imageworker
