// EmbeddedSamples.h - the sample settings files compiled into the tool.
#pragma once

#include <cstddef>

namespace vextool {

struct EmbeddedFile {
    const char* name;
    const unsigned char* data;
    std::size_t size;
};

extern const EmbeddedFile kEmbeddedSamples[];
extern const std::size_t kEmbeddedSampleCount;

}  // namespace vextool
