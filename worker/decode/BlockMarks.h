#pragma once

struct AVFrame;

namespace imageworker {

/// Writes a mark into each block of the first plane of @p frame, which a decoder of HEVC is about to fill. A
/// block has 16 x 16 samples: no coding tree block is smaller (ITU-T H.265, 7.4.3.2.1).
void markBlocks(const AVFrame &frame);

/// Whether a block of @p frame, which is not cropped yet, still has its mark: no slice has covered it. The
/// decoder reports a slice that breaks off, but none that is missing.
bool hasMarkedBlock(const AVFrame &frame);

} // namespace imageworker
