// Loading and saving a tide file of 1,000,000 records (16 MB), against the
// plainest code that does the same work: one fread of the whole file with
// every record inserted into a std::map at its end, and fwrite of the
// records (from a walk over a map, and in one call from an array).
// Targets: loading within 1.5x, saving within 2x of these.
// A save also waits until the data is on the disk and renames the file
// into place, as every save of the library does; SaveFwriteSync adds the
// same wait to the fwrite, to show what of the difference is the disk.
#include <base/framework/CFile.h>
#include <base/platform/FileSystem.h>
#include <base/survey/TideFile.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr int kRecords = 1000000;

class RecordFile {
  public:
    RecordFile() {
        const auto folder = std::filesystem::temp_directory_path();
        path_ = folder / "vexbase-bench.tid";
        savePath_ = folder / "vexbase-bench-saved.tid";
        records_.resize(2 * kRecords);
        // 10-minute steps from 2026-11-20 00:00 UTC, a tide-like height.
        for (int i = 0; i < kRecords; ++i) {
            records_[2 * i] = 1795132800000.0 + 600000.0 * i;
            records_[2 * i + 1] = 2.0 + 1.5 * ((i % 75) - 37) / 37.0;
        }
        std::ofstream(path_, std::ios::binary)
            .write(reinterpret_cast<const char*>(records_.data()),
                   static_cast<std::streamsize>(Bytes()));
    }
    ~RecordFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
        std::filesystem::remove(savePath_, ignored);
    }
    std::string Path() const { return path_.string(); }
    std::string SavePath() const { return savePath_.string(); }
    vex::CString WidePath() const { return vex::CString(path_.u16string()); }
    vex::CString WideSavePath() const { return vex::CString(savePath_.u16string()); }
    const std::vector<double>& Records() const { return records_; }
    static std::size_t Bytes() { return 16u * kRecords; }

  private:
    std::filesystem::path path_;
    std::filesystem::path savePath_;
    std::vector<double> records_;
};

const RecordFile& File() {
    static const RecordFile file;
    return file;
}

void LoadFreadMap(benchmark::State& state) {
    const RecordFile& file = File();
    std::vector<double> buffer(2 * kRecords);
    for (auto _ : state) {
        std::FILE* f = std::fopen(file.Path().c_str(), "rb");
        if (!f || std::fread(buffer.data(), 1, RecordFile::Bytes(), f) != RecordFile::Bytes())
            state.SkipWithError("read failed");
        if (f) std::fclose(f);
        std::map<double, double> values;
        for (int i = 0; i < kRecords; ++i)
            values.emplace_hint(values.end(), buffer[2 * i], buffer[2 * i + 1]);
        benchmark::DoNotOptimize(values);
        state.PauseTiming();  // freeing the map is not part of loading
        values.clear();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * RecordFile::Bytes()));
}

void LoadTideFile(benchmark::State& state) {
    const RecordFile& file = File();
    for (auto _ : state) {
        vex::TideFile tide;
        if (!tide.FileOpen(file.WidePath(), false) || tide.GetNumValues() != kRecords)
            state.SkipWithError("open failed");
        benchmark::DoNotOptimize(tide);
        state.PauseTiming();
        tide.FileClose(false);
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * RecordFile::Bytes()));
}

void SaveFwrite(benchmark::State& state) {
    const RecordFile& file = File();
    for (auto _ : state) {
        std::FILE* f = std::fopen(file.SavePath().c_str(), "wb");
        if (!f ||
            std::fwrite(file.Records().data(), 1, RecordFile::Bytes(), f) != RecordFile::Bytes())
            state.SkipWithError("write failed");
        if (f) std::fclose(f);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * RecordFile::Bytes()));
}

// The records as a caller holding the series in a map writes them: a walk
// over the map with one fwrite per record.
void SaveFwriteFromMap(benchmark::State& state) {
    const RecordFile& file = File();
    std::map<double, double> values;
    for (int i = 0; i < kRecords; ++i)
        values.emplace_hint(values.end(), file.Records()[2 * i], file.Records()[2 * i + 1]);
    for (auto _ : state) {
        std::FILE* f = std::fopen(file.SavePath().c_str(), "wb");
        if (!f) {
            state.SkipWithError("open failed");
            break;
        }
        for (const auto& [time, height] : values) {
            const double record[2] = {time, height};
            std::fwrite(record, sizeof record, 1, f);
        }
        if (std::fclose(f) != 0) state.SkipWithError("write failed");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * RecordFile::Bytes()));
}

void SaveFwriteSync(benchmark::State& state) {
    const RecordFile& file = File();
    for (auto _ : state) {
        std::FILE* f = std::fopen(file.SavePath().c_str(), "wb");
        if (!f ||
            std::fwrite(file.Records().data(), 1, RecordFile::Bytes(), f) != RecordFile::Bytes())
            state.SkipWithError("write failed");
        if (f) std::fclose(f);
        vex::platform::NativeFile written;
        if (!written.Open(file.WideSavePath().View(), vex::CFile::modeReadWrite) ||
            !written.SyncToDisk())
            state.SkipWithError("sync failed");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * RecordFile::Bytes()));
}

void SaveTideFile(benchmark::State& state) {
    const RecordFile& file = File();
    vex::TideFile tide;
    if (!tide.FileOpen(file.WidePath(), false)) state.SkipWithError("open failed");
    tide.FileOpen(file.WideSavePath(), false);  // saves go to the other file
    const double first = file.Records()[0];
    const double height = file.Records()[1];
    for (auto _ : state) {
        tide.UpdateTideValue(first, height);  // marks it modified
        if (!tide.FileSave()) state.SkipWithError("save failed");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * RecordFile::Bytes()));
}

BENCHMARK(LoadFreadMap)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(LoadTideFile)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveFwrite)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveFwriteFromMap)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveFwriteSync)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveTideFile)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
