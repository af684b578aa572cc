// LineDataList.h - the process-wide registry of line-data types: creators
// registered by type number make lines by name.
//
// The registry does not own its creators; they must outlive their
// registration (static objects are usual). It is safe to use from several
// threads at once. The first registration of a number wins.
//
//   static MyCreator creator;
//   vex::LineDataList::GetLineDataList().RegisterLineData(12, &creator);
//   std::unique_ptr<vex::LineData> line(vex::LineDataList::GetLineDataList().Create(12, u"A"));
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <cstdint>
#include <map>
#include <mutex>

namespace vex {

class LineData;
class LineDataICreator;

class VEXBASE_API LineDataList {
  public:
    // The process-wide registry, made on first use.
    static LineDataList& GetLineDataList();

    // Enters the creator under the number unless the number is registered
    // already; true when it was entered. A null creator is refused.
    bool RegisterLineData(std::uint32_t number, LineDataICreator* creator);
    // A new line of the type, owned by the caller; null for an unknown number
    // or when the creator makes none.
    LineData* Create(std::uint32_t number, const CString& name) const;
    bool IsRegistered(std::uint32_t number) const;

  private:
    LineDataList() = default;

    mutable std::mutex mutex_;
    std::map<std::uint32_t, LineDataICreator*> creators_;
};

}  // namespace vex
