#include <base/survey/TideFile.h>

#include <base/framework/AtomicFile.h>
#include <base/framework/CFile.h>
#include <base/framework/LittleEndian.h>
#include <base/platform/FileSystem.h>
#include <base/platform/TransientFileError.h>
#include <base/survey/TideRecordLoader.h>

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <utility>

namespace vex {

const char16_t* const TideTimeFormats[2] = {u"HM", u"HMS"};

namespace {

// Read and write, others may read but not write while the file is loaded.
constexpr unsigned kOpenFlags = CFile::modeReadWrite | CFile::shareDenyWrite | CFile::modeNoInherit;

class TideFileSource final : public detail::TideRecordSource {
  public:
    explicit TideFileSource(const CString& path) : path_(path) {}

    bool Open(bool create) {
        return file_.Open(path_.View(), create ? kOpenFlags | CFile::modeCreate : kOpenFlags);
    }
    ReadResult Read(void* buffer, std::size_t size, std::size_t& count) override {
        if (file_.Read(buffer, size, count)) return ReadResult::ok;
        return platform::IsTransientNetworkError(file_.GetError()) ? ReadResult::networkDropped
                                                                   : ReadResult::failed;
    }
    bool Reopen(std::uint64_t offset) override {
        file_.Close();
        std::uint64_t position = 0;
        return Open(false) && file_.Seek(static_cast<std::int64_t>(offset), CFile::begin, position);
    }
    double NowMs() override {
        using namespace std::chrono;
        return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
    }

  private:
    CString path_;
    platform::NativeFile file_;
};

}  // namespace

TideFile::TideFile(const TideFile& other)
    : values_(other.values_),
      modified_(other.modified_),
      openCount_(other.openCount_),
      current_(values_.end()),
      fileName_(other.fileName_) {}

TideFile::TideFile(TideFile&& other) noexcept
    : values_(std::move(other.values_)),
      modified_(other.modified_),
      openCount_(other.openCount_),
      current_(values_.end()),
      fileName_(std::move(other.fileName_)) {
    other.values_.clear();
    other.current_ = other.values_.end();
}

TideFile& TideFile::operator=(const TideFile& other) {
    if (this != &other) {
        values_ = other.values_;
        modified_ = other.modified_;
        openCount_ = other.openCount_;
        current_ = values_.end();
        fileName_ = other.fileName_;
    }
    return *this;
}

TideFile& TideFile::operator=(TideFile&& other) noexcept {
    if (this != &other) {
        values_ = std::move(other.values_);
        modified_ = other.modified_;
        openCount_ = other.openCount_;
        current_ = values_.end();
        fileName_ = std::move(other.fileName_);
        other.values_.clear();
        other.current_ = other.values_.end();
    }
    return *this;
}

bool TideFile::FileOpen(const CString& fileName, bool create) {
    fileName_ = fileName;
    if (openCount_ > 0) {
        if (openCount_ == INT_MAX) return false;
        ++openCount_;
        return true;
    }
    if (!Load(create)) return false;
    modified_ = false;
    openCount_ = 1;
    return true;
}

bool TideFile::Load(bool create) {
    TideFileSource source(fileName_);
    if (!source.Open(create)) return false;
    detail::LoadTideRecords(source, values_);
    return true;
}

int TideFile::FileClose(bool save) {
    if (openCount_ <= 0) return 0;
    if (save) FileSave();
    if (--openCount_ > 0) return openCount_;
    values_.clear();
    current_ = values_.end();
    return 0;
}

bool TideFile::FileSave() {
    if (openCount_ <= 0) return false;
    if (!modified_) return true;
    AtomicFile file;
    if (!file.Open(fileName_)) return false;
    constexpr std::size_t kRecordsPerWrite = 4096;
    std::array<std::byte, 16 * kRecordsPerWrite> buffer;
    std::size_t used = 0;
    for (const auto& [time, value] : values_) {
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(buffer.data() + used, &time, 8);
            std::memcpy(buffer.data() + used + 8, &value, 8);
        } else {
            const auto timeBytes = ToLittleEndian(time);
            const auto valueBytes = ToLittleEndian(value);
            std::copy(timeBytes.begin(), timeBytes.end(), buffer.begin() + used);
            std::copy(valueBytes.begin(), valueBytes.end(), buffer.begin() + used + 8);
        }
        used += 16;
        if (used == buffer.size()) {
            // A failed write spoils the save; Commit reports it.
            file.Write(buffer.data(), used);
            used = 0;
        }
    }
    if (used > 0) file.Write(buffer.data(), used);
    if (!file.Commit()) return false;
    modified_ = false;
    return true;
}

int TideFile::GetNumValues() const {
    return values_.size() > static_cast<std::size_t>(INT_MAX) ? INT_MAX
                                                              : static_cast<int>(values_.size());
}

bool TideFile::AddTideValue(double time, double value) {
    if (std::isnan(time)) return false;
    values_.insert_or_assign(time, value);
    modified_ = true;
    return true;
}

bool TideFile::DeleteTideValue(double time) {
    if (current_ != values_.end() && current_->first == time) {
        current_ = values_.erase(current_);
        modified_ = true;
        return true;
    }
    if (std::isnan(time) || values_.erase(time) == 0) return false;
    modified_ = true;
    return true;
}

bool TideFile::UpdateTideValue(double time, double value) {
    if (current_ == values_.end() || current_->first != time) {
        current_ = std::isnan(time) ? values_.end() : values_.lower_bound(time);
        if (current_ == values_.end() || current_->first != time) return false;
    }
    current_->second = value;
    modified_ = true;
    return true;
}

bool TideFile::GetTideValue(double time, double& value) {
    current_ = std::isnan(time) ? values_.end() : values_.find(time);
    if (current_ == values_.end()) return false;
    value = current_->second;
    return true;
}

bool TideFile::Take(std::map<double, double>::iterator found, double& time, double& value) {
    current_ = found;
    if (found == values_.end()) return false;
    time = found->first;
    value = found->second;
    return true;
}

bool TideFile::GetFirstTideValue(double& time, double& value) {
    if (values_.empty()) return false;
    return Take(values_.begin(), time, value);
}

bool TideFile::GetLastTideValue(double& time, double& value) {
    if (values_.empty()) return false;
    return Take(std::prev(values_.end()), time, value);
}

bool TideFile::GetCurrentTideValue(double& time, double& value) const {
    if (current_ == values_.end()) return false;
    time = current_->first;
    value = current_->second;
    return true;
}

bool TideFile::GetNextTideValue(double& time, double& value) {
    if (current_ == values_.end()) return false;
    return Take(std::next(current_), time, value);
}

bool TideFile::GetPreviousTideValue(double& time, double& value) {
    if (values_.empty()) return false;
    return Take(current_ == values_.begin() ? current_ : std::prev(current_), time, value);
}

bool TideFile::GetValueBefore(double& time, double& value) {
    if (std::isnan(time)) return Take(values_.end(), time, value);
    const auto later = values_.lower_bound(time);
    return Take(later == values_.begin() ? values_.end() : std::prev(later), time, value);
}

bool TideFile::GetValueOnOrBefore(double& time, double& value) {
    if (std::isnan(time) || values_.empty()) return Take(values_.end(), time, value);
    const auto later = values_.upper_bound(time);
    return Take(later == values_.begin() ? later : std::prev(later), time, value);
}

bool TideFile::GetValueAfter(double& time, double& value) {
    if (std::isnan(time)) return Take(values_.end(), time, value);
    return Take(values_.upper_bound(time), time, value);
}

bool TideFile::GetValueOnOrAfter(double& time, double& value) {
    if (std::isnan(time)) return Take(values_.end(), time, value);
    return Take(values_.lower_bound(time), time, value);
}

bool TideFile::GetTimeSpan(double& first, double& last) const {
    if (openCount_ <= 0) return false;
    if (values_.empty()) return true;
    first = values_.begin()->first;
    last = values_.rbegin()->first;
    return true;
}

}  // namespace vex
