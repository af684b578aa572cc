// Differences between two file objects: describing them as a third object
// of "add.", "change." and "remove." sections, applying such a description,
// and asking whether there are any.
#include <base/config/FileObject.h>

#include <base/config/SectionData.h>

#include <string_view>
#include <utility>
#include <vector>

namespace vex {
namespace {

constexpr std::u16string_view kChecksumSection = u"Checksum";

enum class Operation { add, change, remove };

constexpr std::u16string_view kOperationWords[] = {u"add", u"change", u"remove"};

CString DifferenceSectionName(Operation operation, const CString& section) {
    CString name(kOperationWords[static_cast<int>(operation)]);
    name += u".";
    name += section;
    return name;
}

// Splits "word.section" into its operation and target; false when the word
// before the first full stop is none of the operation words.
bool SplitDifferenceName(std::u16string_view name, Operation& operation, CString& section) {
    const std::size_t dot = name.find(u'.');
    if (dot == std::u16string_view::npos) return false;
    const std::u16string_view word = name.substr(0, dot);
    for (int i = 0; i < 3; ++i) {
        if (word == kOperationWords[i]) {
            operation = static_cast<Operation>(i);
            section = CString(name.substr(dot + 1));
            return true;
        }
    }
    return false;
}

using Item = std::pair<const CString*, const CString*>;

}  // namespace

// Receives the differences one section at a time; returning false stops
// the walk. items is empty for a section that is created or deleted whole
// without keys.
struct FileObject::DifferenceSink {
    virtual ~DifferenceSink() = default;
    virtual bool Section(Operation operation, const CString& section,
                         const std::vector<Item>& items) = 0;
};

bool FileObject::CompareWith(const FileObject& other, DifferenceSink& sink) const {
    std::vector<Item> adds;
    std::vector<Item> changes;
    std::vector<Item> removes;
    bool go = true;
    m_sections.ForEach([&](const CString& name, const std::shared_ptr<detail::SectionData>& mine) {
        if (!go || name.View() == kChecksumSection) return;
        adds.clear();
        changes.clear();
        removes.clear();
        const detail::SectionData* theirs = other.FindSection(name);
        mine->ForEach([&](const CString& key, const CString& value) {
            const CString* target = theirs ? theirs->Find(key.View()) : nullptr;
            if (target == nullptr) {
                removes.emplace_back(&key, &value);
            } else if (*target != value) {
                changes.emplace_back(&key, target);
            }
        });
        if (theirs == nullptr) {
            // Removed whole; an empty section is removed by an empty "remove.".
            go = sink.Section(Operation::remove, name, removes);
            return;
        }
        theirs->ForEach([&](const CString& key, const CString& value) {
            if (mine->Find(key.View()) == nullptr) adds.emplace_back(&key, &value);
        });
        if (theirs->IsEmpty() && !mine->IsEmpty()) {
            // Removing every key deletes the section; an empty "add." after
            // it brings the section back empty, as the target has it.
            go = sink.Section(Operation::remove, name, removes) &&
                 sink.Section(Operation::add, name, adds);
            return;
        }
        // Additions first, so that the section is never emptied on the way
        // and keeps its place.
        if (!adds.empty()) go = sink.Section(Operation::add, name, adds);
        if (go && !changes.empty()) go = sink.Section(Operation::change, name, changes);
        if (go && !removes.empty()) go = sink.Section(Operation::remove, name, removes);
    });
    other.m_sections.ForEach(
        [&](const CString& name, const std::shared_ptr<detail::SectionData>& theirs) {
            if (!go || name.View() == kChecksumSection || FindSection(name) != nullptr) return;
            adds.clear();
            theirs->ForEach(
                [&](const CString& key, const CString& value) { adds.emplace_back(&key, &value); });
            go = sink.Section(Operation::add, name, adds);
        });
    return go;
}

bool FileObject::GetDifference(const FileObject& other, FileObject& difference) const {
    struct Writer : DifferenceSink {
        FileObject result;
        bool Section(Operation operation, const CString& section,
                     const std::vector<Item>& items) override {
            const CString name = DifferenceSectionName(operation, section);
            result.CreateSection(name, false);
            for (const Item& item : items)
                result.SetItem(name, *item.first, *item.second, true);
            return true;
        }
    } writer;
    m_errorStatus = statusOk;
    CompareWith(other, writer);
    // Built aside first: difference may be this object or other.
    difference.MakeEmpty();
    difference.m_sections = std::move(writer.result.m_sections);
    return true;
}

bool FileObject::HasDifferences(const FileObject& other) const {
    struct Detector : DifferenceSink {
        bool Section(Operation, const CString&, const std::vector<Item>&) override { return false; }
    } detector;
    m_errorStatus = statusOk;
    return !CompareWith(other, detector);
}

bool FileObject::ApplyDifference(const FileObject& difference) {
    m_errorStatus = statusOk;
    struct Step {
        Operation operation;
        CString section;
        std::shared_ptr<detail::SectionData> items;
    };
    // Checked whole before anything changes, and held apart from
    // difference, which may be this object.
    std::vector<Step> steps;
    bool wellFormed = true;
    difference.m_sections.ForEach(
        [&](const CString& name, const std::shared_ptr<detail::SectionData>& items) {
            if (name.View() == kChecksumSection) return;
            Step step{Operation::add, CString(),
                      &difference == this ? std::make_shared<detail::SectionData>(*items) : items};
            if (!SplitDifferenceName(name.View(), step.operation, step.section)) {
                wellFormed = false;
            } else if (step.section.View() != kChecksumSection) {
                steps.push_back(std::move(step));
            }
        });
    if (!wellFormed) {
        m_errorStatus = statusNotADifference;
        return false;
    }
    for (const Step& step : steps) {
        if (step.operation == Operation::remove) {
            detail::SectionData* target = FindSection(step.section);
            if (target == nullptr) continue;
            step.items->ForEach(
                [&](const CString& key, const CString&) { target->Erase(key.View()); });
            if (target->IsEmpty()) m_sections.Erase(step.section.View());
        } else {
            detail::SectionData& target = SectionForWriting(step.section, false);
            step.items->ForEach(
                [&](const CString& key, const CString& value) { target.Set(key, value); });
        }
    }
    return true;
}

}  // namespace vex
