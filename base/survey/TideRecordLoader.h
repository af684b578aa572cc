// TideRecordLoader.h - the loading loop of tide files, apart from the file
// itself so that failing and dropping sources can be simulated.
//
// TideFile::FileOpen is the way to load a tide file; this header is for
// the library's own tests. Records are 16 bytes (little-endian double time,
// double value); see TideFile.h for the thinning of the series.
#pragma once

#include <base/Export.h>

#include <cstddef>
#include <cstdint>
#include <map>

namespace vex::detail {

// Records are kept only this far apart in time, in file order.
inline constexpr double kTideLoadSpacing = 30000.0;
// A dropped network file is opened again at most this often (ms).
inline constexpr double kTideReopenIntervalMs = 15000.0;

// Where the records of a load come from.
class VEXBASE_API TideRecordSource {
  public:
    enum class ReadResult { ok, failed, networkDropped };

    virtual ~TideRecordSource();
    // Reads up to size bytes; count receives how many came (fewer than
    // size only at the end of the file). networkDropped is a failure after
    // which opening the file again may let the load go on.
    virtual ReadResult Read(void* buffer, std::size_t size, std::size_t& count) = 0;
    // Opens the file again and positions it at offset; false when it cannot.
    virtual bool Reopen(std::uint64_t offset) = 0;
    // A steady clock in milliseconds, for spacing the reopenings.
    virtual double NowMs() = 0;
};

// Reads records from source until its end, a trailing piece of fewer than
// 16 bytes, or a failure, storing each record whose time is at least
// kTideLoadSpacing after the previously stored one (starting from 0.0) in
// values, replacing a value at the same time. After a networkDropped read
// the source is reopened at the first record not yet taken, unless it was
// reopened less than kTideReopenIntervalMs before; then the load ends.
VEXBASE_API void LoadTideRecords(TideRecordSource& source, std::map<double, double>& values);

}  // namespace vex::detail
