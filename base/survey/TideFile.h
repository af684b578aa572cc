// TideFile.h - TideFile, the series of tide heights that a processing run
// applies to reduce soundings to chart datum: pairs of a time and a tide
// value, kept sorted by time, loaded from and saved to a tide file.
//
// Times are the suite's time values (milliseconds since 1970-01-01 UTC);
// values are heights in the system length unit. The class only compares
// and stores them and never interpolates: every lookup returns a stored
// pair (see TideInterpolation.h for heights between stored times).
//
// The file is headerless: 16-byte records of a double time and a double
// value, both little-endian IEEE 754, on every platform. Loading keeps a
// record only when its time lies at least 30000.0 after the previously
// kept one in file order (so a record below 30000.0 at the start is never
// kept); values added later are never thinned. Saves write every pair in
// ascending time order, in one step: a failed save leaves the old file.
//
// One object belongs to one thread at a time. Several users may open the
// same object: the values stay until the last FileClose.
//
//   vex::TideFile tide;
//   if (!tide.FileOpen(u"harbour.tid", false)) return false;
//   double t = when, h = 0;
//   if (tide.GetValueOnOrBefore(t, h)) use(t, h);  // t is now the stored time
//   tide.FileClose(false);
#pragma once

#include <base/Export.h>
#include <base/framework/CString.h>

#include <map>

namespace vex {

// The time formats that the suite offers for tide input: "HM" (hours and
// minutes) and "HMS" (hours, minutes and seconds), in that order.
extern VEXBASE_API const char16_t* const TideTimeFormats[2];

class VEXBASE_API TideFile {
  public:
    // A closed, empty, unmodified object; current position at end; no name.
    TideFile() = default;
    // A copy takes the values, the modified flag, the open count and the
    // file name; its current position is at end until a positioning call
    // sets it. Moves behave the same and leave the source's values empty.
    TideFile(const TideFile& other);
    TideFile(TideFile&& other) noexcept;
    TideFile& operator=(const TideFile& other);
    TideFile& operator=(TideFile&& other) noexcept;
    ~TideFile() = default;

    // Stores fileName (also when already open, which changes where later
    // saves go). When already open, counts one more opening and returns
    // true without reading. Otherwise opens the file for reading and
    // writing (a read-only file does not open), created anew and empty
    // with create true, required to exist with create false, and loads its
    // records into the values (values added before opening stay); then the
    // object is unmodified with an open count of 1. False, with the object
    // still closed, when the file cannot be opened. The file is held only
    // while loading: a read failure ends the load with the pairs read so
    // far, and on Windows a brief network drop opens the file again, at
    // most once per 15 s, and the load goes on where it stopped (POSIX
    // reports no such drop: there every read failure ends the load).
    // Records whose time is NaN, or not at least 30000.0 after the last
    // kept time, are skipped; after a record at +infinity nothing more is
    // kept. Values are kept as stored, NaN and infinities included; a
    // trailing piece of fewer than 16 bytes is ignored.
    bool FileOpen(const CString& fileName, bool create);
    // 0 when not open. Saves first when save is true (the save's result is
    // not reported), then counts one opening less and returns the openings
    // left; at 0 the values are removed and the current position is at end.
    int FileClose(bool save);
    // False when not open; true without touching the file when unmodified.
    // Otherwise replaces the file under the stored name by every pair in
    // ascending time order and clears the modified flag. False, with the
    // old file as it was and the flag still set, when that fails.
    bool FileSave();

    bool IsOpen() const { return openCount_ > 0; }
    int GetOpenCount() const { return openCount_; }
    bool IsModified() const { return modified_; }
    const CString& GetFileName() const { return fileName_; }
    int GetNumValues() const;
    // Every stored pair, ascending by time (for reading the whole series).
    const std::map<double, double>& GetValues() const { return values_; }

    // Stores value at time, replacing a value stored at exactly that time;
    // marks the object modified; the current position stays. True, except
    // for a NaN time, which has no place in a time order and is refused.
    bool AddTideValue(double time, double value);
    // Removes the pair at exactly time. When it is the current pair, the
    // position moves to the pair that followed it (or to end). False when
    // there is no such pair.
    bool DeleteTideValue(double time);
    // Replaces the value at exactly time. Unless the current pair has that
    // time, the position first moves to the first pair at or after time,
    // and stays there even when that pair's time differs (false) or there
    // is none (false, position at end).
    bool UpdateTideValue(double time, double value);
    // The value at exactly time; the position moves to that pair, or to
    // end when there is none (false, value unchanged).
    bool GetTideValue(double time, double& value);

    // Positioning reads: on success time and value receive the pair and
    // the current position is that pair; on failure they are unchanged.
    // First and last pair; false when empty.
    bool GetFirstTideValue(double& time, double& value);
    bool GetLastTideValue(double& time, double& value);
    // The current pair without moving; false when the position is at end.
    bool GetCurrentTideValue(double& time, double& value) const;
    // The pair after the current one; false when the position was at end
    // or moves there now.
    bool GetNextTideValue(double& time, double& value);
    // The pair before the current one. At the first pair the position stays
    // and that pair is returned again; from the end it moves to the last
    // pair. False only when empty.
    bool GetPreviousTideValue(double& time, double& value);

    // Neighbour lookups: time is both the time asked for and, on success,
    // the time of the pair found, which becomes the current pair. When
    // nothing is found (and for a NaN time) they return false, leave time
    // and value unchanged and put the position at end.
    // The last pair strictly before time.
    bool GetValueBefore(double& time, double& value);
    // The pair at exactly time, else the last one before it; when every
    // stored time is later, the first pair (a later one) with true. False
    // only when empty.
    bool GetValueOnOrBefore(double& time, double& value);
    // The first pair strictly after time.
    bool GetValueAfter(double& time, double& value);
    // The first pair at or after time.
    bool GetValueOnOrAfter(double& time, double& value);

    // The first and last stored times. False when not open (whatever the
    // values); true with both left unchanged when there are no values.
    bool GetTimeSpan(double& first, double& last) const;

  private:
    // Reads the file's records into the values; false when it cannot be opened.
    bool Load(bool create);
    // The found pair's time and value out, position on it; or false at end.
    bool Take(std::map<double, double>::iterator found, double& time, double& value);

    std::map<double, double> values_;
    bool modified_ = false;
    int openCount_ = 0;
    std::map<double, double>::iterator current_ = values_.end();
    CString fileName_;
};

}  // namespace vex
