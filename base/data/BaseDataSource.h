// BaseDataSource.h - BaseDataSource, the interface of every producer of
// time-tagged data in the suite: a buffer of data blocks for one data id
// that is filled, queried by time (with interpolation or extrapolation)
// and watched by subscribers.
//
// The library supplies the interface and do-nothing defaults only: every
// operation a concrete source does not override reports failure (false, 0,
// 0.0 or null) and never throws; GetGlobalEnableRecache alone answers true.
// The base keeps two pieces of state, the option bits and the time of the
// last notification. Times are milliseconds since 1970-01-01 UTC. A source
// does not own its subscribers. The virtual operations are declared in a
// fixed order that components built against the suite's binary interface
// rely on: add new ones at the end only.
//
//   class GyroSource : public vex::BaseDataSource {
//       bool GetDataId(vex::CDataId& id) const override { id = id_; return true; }
//       ...
//   };
#pragma once

#include <base/Export.h>
#include <base/data/CDataId.h>
#include <base/framework/SuiteTypes.h>

#include <cstdint>

namespace vex {

class VEXBASE_API BaseDataSource {
  public:
    // Options 0, last notification time 0.
    BaseDataSource() = default;
    BaseDataSource(const BaseDataSource&) = default;
    BaseDataSource& operator=(const BaseDataSource&) = default;
    virtual ~BaseDataSource();

    // --- options ---------------------------------------------------------
    // Sets the bits of mask in the options.
    virtual void SetOption(std::uint32_t mask);
    // Clears the bits of mask in the options.
    virtual void ResetOption(std::uint32_t mask);

    // --- set-up ------------------------------------------------------------
    virtual void Init();
    virtual bool DataBlockSetup(std::uint16_t elementCount, const CDataId& dataId);
    virtual bool InitDataElement(int index, std::uint16_t value1, std::uint16_t value2,
                                 std::uint16_t value3, std::uint16_t value4, std::uint16_t value5);
    virtual bool DataBlockInit();

    // --- interpolation -----------------------------------------------------
    virtual bool Interpolate(CDataBlock& block);
    virtual bool Interpolate(double time, std::uint16_t element, ADDR_MODE mode, double& value,
                             std::uint16_t& status);
    // limit1 and limit2 are passed through to the concrete source, whose
    // heading interpolation defines them.
    virtual bool InterpolateHeading(double time, std::uint16_t element, ADDR_MODE mode,
                                    double limit1, double limit2, double& value,
                                    std::uint16_t& status);
    // The times and values at the two ends of the buffer interval around
    // time, as the concrete source fills them.
    virtual bool FindIntervalStartEnd(double time, std::uint16_t element, ADDR_MODE mode,
                                      double& startTime, double& startValue, double& endTime,
                                      double& endValue, std::uint16_t& status);

    // --- buffer access -----------------------------------------------------
    virtual bool GetLastAddTime(double& time) const;
    virtual bool GetLastAddTimeLocal(double& time) const;
    virtual void UpdateLastAddTime();
    virtual bool GetDataBlock(int index, CDataBlock& block);
    virtual bool GetDataBlock(int index, double& time, CDataBlock& block);
    virtual bool GetDataTimeStatus(int index, double& time, std::uint16_t& status);
    virtual bool UpdateData(double time, const CAttributeMap& attributes);
    virtual bool UpdateDataBlock(CDataBlock& block);
    virtual bool GetBufferStatus(double& time, std::uint16_t& status) const;
    virtual bool SetBufferStatus(double time, std::uint16_t status);
    virtual bool AddDataBlock(const CDataBlock& block);
    virtual bool AddClockSyncDataBlock(const CDataBlock& block);
    virtual bool GetDataId(CDataId& dataId) const;
    virtual CDataId* GetDataIdPtr();
    virtual bool GetLastElementInternal();
    virtual CDataBlock* GetInternalDataBlock();
    virtual void CopyDataBlock(CDataBlock& block) const;
    virtual bool GetLastDataBlock(CDataBlock& block);

    // --- notification and subscriptions -----------------------------------
    // Stores the time of the last notification of subscribers.
    virtual void SetLastNotifyTime(double time);
    // The stored time; 0 until SetLastNotifyTime.
    virtual double GetLastNotifyTime();
    virtual void NotifySubscribers();
    virtual void AddCompSubscription(Compform* computation);
    virtual void RemoveCompSubscription(Compform* computation);
    virtual void AddDeviceSubscription(BaseDevice* device);
    virtual void RemoveDeviceSubscription(BaseDevice* device);
    virtual void AddDocumentSubscription(CDocument* document);
    virtual void RemoveDocumentSubscription(CDocument* document);
    virtual void AddDataSubscription(DataSubscription* subscription);
    virtual void RemoveDataSubscription(DataSubscription* subscription);

    // --- buffer size and attributes ---------------------------------------
    virtual bool Allocate(std::int32_t size);
    virtual void SetInterpolAttribs(bool enabled, double interval);
    virtual void SetExtrapolationAttribs(bool enabled, double interval);
    virtual bool GetInterpolAttribs(double& interval);
    virtual bool GetExtrapolationAttribs(double& interval);
    virtual std::int32_t GetBufSize() const;
    virtual std::int32_t GetNumElements();
    virtual std::int32_t GetFreeBufferSpace() const;
    virtual void ResetNumUnusedElements();
    virtual bool GetTimeSpan(double& firstTime, double& lastTime);
    virtual double GetFirstElementTime();
    virtual double GetLastElementTime();
    virtual bool HandleAttribsChange(const CDataId& dataId);

    // --- errors and caching -------------------------------------------------
    virtual void ReportError(double time, bool flag, std::int32_t code);
    virtual std::int32_t GetError();
    virtual bool MakeEmpty();
    virtual void SetGlobalEnableRecache(bool enable);
    // True unless a concrete source says otherwise.
    virtual bool GetGlobalEnableRecache();

    // True when any bit of mask is set in the options.
    bool CheckOption(std::uint32_t mask) const { return (options_ & mask) != 0; }

  protected:
    std::uint32_t options_ = 0;
    double lastNotifyTime_ = 0.0;
};

}  // namespace vex
