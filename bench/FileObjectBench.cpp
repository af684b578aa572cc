// Loading and saving a large configuration file: 21 MiB in 200,000 key
// lines, spread over 2,000 sections or all in one, against two peer
// parsers of the same bytes in the same program: inih (a callback per
// entry that stores nothing) and SimpleIni (which keeps the entries).
// Loading must beat both; saving must not be slower than loading; the
// memory held after loading must stay under three times the file's size.
// Also GetItem on the loaded file and deleting every key, which must stay
// far from quadratic.
#include <base/config/FileObject.h>
#include <base/framework/CString.h>

#include <benchmark/benchmark.h>
#include <ini.h>
// Debian's SimpleIni is built for the ICU converter.
#define SI_CONVERT_ICU
#include <SimpleIni.h>

#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// Every allocation of the program is counted while g_counting is set, so
// that the memory a loaded file holds can be reported.
namespace {
bool g_counting = false;
std::size_t g_live = 0;
std::size_t g_peak = 0;

void* Allocate(std::size_t size) {
    void* p = std::malloc(size ? size : 1);
    if (p == nullptr) throw std::bad_alloc();
    if (g_counting) {
        g_live += malloc_usable_size(p);
        if (g_live > g_peak) g_peak = g_live;
    }
    return p;
}
void Free(void* p) noexcept {
    if (p == nullptr) return;
    if (g_counting) g_live -= malloc_usable_size(p);
    std::free(p);
}
}  // namespace

void* operator new(std::size_t size) {
    return Allocate(size);
}
void* operator new[](std::size_t size) {
    return Allocate(size);
}
void operator delete(void* p) noexcept {
    Free(p);
}
void operator delete[](void* p) noexcept {
    Free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    Free(p);
}
void operator delete[](void* p, std::size_t) noexcept {
    Free(p);
}

namespace {

constexpr int kKeys = 200000;

// A file of kKeys lines of about 100 bytes in the given number of sections.
std::string MakeFile(int sections) {
    std::mt19937 random(1);
    std::string text;
    text.reserve(21u * 1024u * 1024u);
    text += "; Vex settings written for the benchmark\r\n\r\n";
    const int perSection = kKeys / sections;
    char line[160];
    for (int s = 0; s < sections; ++s) {
        std::snprintf(line, sizeof line, "[Section %05d]\r\n", s);
        text += line;
        for (int k = 0; k < perSection; ++k) {
            std::snprintf(line, sizeof line,
                          "Device%03d.Channel%04d.Setting = %10u, %10u, calibrated %08x, "
                          "offset %+.6f m, quality good\r\n",
                          k % 1000, k, static_cast<unsigned>(random()),
                          static_cast<unsigned>(random()), static_cast<unsigned>(random()),
                          (random() % 100000) / 1000.0);
            text += line;
        }
        text += "\r\n";
    }
    return text;
}

class LargeFile {
  public:
    explicit LargeFile(int sections) {
        path_ = std::filesystem::temp_directory_path() /
                ("vexbase-bench-" + std::to_string(sections) + ".ini");
        const std::string text = MakeFile(sections);
        std::ofstream(path_, std::ios::binary)
            .write(text.data(), static_cast<std::streamsize>(text.size()));
        bytes_ = text.size();
    }
    ~LargeFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
        std::filesystem::remove(std::filesystem::path(SavePath().Str()), ignored);
    }
    vex::CString Path() const { return vex::CString(path_.u16string()); }
    vex::CString SavePath() const { return vex::CString(path_.u16string() + u".saved"); }
    std::size_t Bytes() const { return bytes_; }

  private:
    std::filesystem::path path_;
    std::size_t bytes_ = 0;
};

void Load(benchmark::State& state) {
    const LargeFile file(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        vex::FileObject settings;
        if (!settings.FileOpen(file.Path())) state.SkipWithError("open failed");
        benchmark::DoNotOptimize(settings);
        state.PauseTiming();  // freeing the object is not part of loading
        settings.MakeEmpty();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.Bytes()));
    state.counters["file_MiB"] = static_cast<double>(file.Bytes()) / (1024.0 * 1024.0);
}
BENCHMARK(Load)->Arg(2000)->Arg(1)->Unit(benchmark::kMillisecond);

// The file's bytes, read as a peer would read them before parsing.
std::string ReadAll(const vex::CString& path) {
    std::ifstream in(std::filesystem::path(path.Str()), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return std::move(text).str();
}

// inih: reads the file and parses it with a callback that stores nothing,
// the least any reader can do.
void LoadInih(benchmark::State& state) {
    const LargeFile file(static_cast<int>(state.range(0)));
    std::size_t entries = 0;
    for (auto _ : state) {
        const std::string text = ReadAll(file.Path());
        const int error = ini_parse_string(
            text.c_str(),
            [](void* user, const char*, const char*, const char*) {
                ++*static_cast<std::size_t*>(user);
                return 1;
            },
            &entries);
        if (error != 0) state.SkipWithError("inih failed");
    }
    benchmark::DoNotOptimize(entries);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.Bytes()));
}
BENCHMARK(LoadInih)->Arg(2000)->Arg(1)->Unit(benchmark::kMillisecond);

// SimpleIni: reads the file and loads it into its maps.
void LoadSimpleIni(benchmark::State& state) {
    const LargeFile file(static_cast<int>(state.range(0)));
    CSimpleIniA ini;
    for (auto _ : state) {
        const std::string text = ReadAll(file.Path());
        if (ini.LoadData(text.data(), text.size()) < 0) state.SkipWithError("SimpleIni failed");
        benchmark::DoNotOptimize(&ini);
        state.PauseTiming();  // freeing the entries is not part of loading
        ini.Reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.Bytes()));
}
BENCHMARK(LoadSimpleIni)->Arg(2000)->Arg(1)->Unit(benchmark::kMillisecond);

// Heap bytes at the peak of a load and held by the loaded object, as
// multiples of the file's size.
void LoadMemory(benchmark::State& state) {
    const LargeFile file(static_cast<int>(state.range(0)));
    std::size_t peak = 0;
    std::size_t held = 0;
    for (auto _ : state) {
        vex::FileObject settings;
        g_live = 0;
        g_peak = 0;
        g_counting = true;
        if (!settings.FileOpen(file.Path())) state.SkipWithError("open failed");
        held = g_live;
        peak = g_peak;
        g_counting = false;
        benchmark::DoNotOptimize(settings);
    }
    const auto bytes = static_cast<double>(file.Bytes());
    state.counters["peak_MiB"] = static_cast<double>(peak) / (1024.0 * 1024.0);
    state.counters["held_MiB"] = static_cast<double>(held) / (1024.0 * 1024.0);
    state.counters["peak_x_file"] = static_cast<double>(peak) / bytes;
    state.counters["held_x_file"] = static_cast<double>(held) / bytes;
}
BENCHMARK(LoadMemory)->Arg(2000)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1);

void Save(benchmark::State& state) {
    const LargeFile file(static_cast<int>(state.range(0)));
    vex::FileObject settings;
    if (!settings.FileOpen(file.Path())) state.SkipWithError("open failed");
    for (auto _ : state) {
        if (!settings.FileSave(file.SavePath())) state.SkipWithError("save failed");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.Bytes()));
}
BENCHMARK(Save)->Arg(2000)->Arg(1)->Unit(benchmark::kMillisecond);

void GetItem(benchmark::State& state) {
    const LargeFile file(1);
    vex::FileObject settings;
    if (!settings.FileOpen(file.Path())) state.SkipWithError("open failed");
    std::vector<vex::CString> keys;
    for (int k = 0; k < 1024; ++k) {
        vex::CString key;
        key.Format(u"Device%03d.Channel%04d.Setting", (k * 193) % 1000, (k * 193) % kKeys);
        keys.push_back(key);
    }
    const vex::CString section(u"Section 00000");
    vex::CString value;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(settings.GetItem(section, keys[i++ & 1023], value));
    }
}
BENCHMARK(GetItem);

void DeleteEveryKey(benchmark::State& state) {
    const LargeFile file(1);
    vex::FileObject loaded;
    if (!loaded.FileOpen(file.Path())) state.SkipWithError("open failed");
    std::vector<vex::CString> keys;
    vex::FobjSection section;
    vex::CString key;
    vex::CString value;
    for (bool more = loaded.GetFirstMapEntry(section, u"Section 00000", key, value); more;
         more = loaded.GetNextMapEntry(section, key, value)) {
        keys.push_back(key);
    }
    for (auto _ : state) {
        state.PauseTiming();
        vex::FileObject settings(loaded);
        state.ResumeTiming();
        for (const vex::CString& k : keys)
            settings.DeleteItem(u"Section 00000", k);
        benchmark::DoNotOptimize(settings);
        state.PauseTiming();
        settings.MakeEmpty();
        state.ResumeTiming();
    }
}
BENCHMARK(DeleteEveryKey)->Unit(benchmark::kMillisecond);

}  // namespace
