// SuiteTypes.h - declarations of the types that the suite's other
// components define and that this library's interfaces only name.
//
// The library passes these by reference or pointer and never looks inside,
// so declarations are enough; a component that implements an interface
// (a data source, say) includes its own definitions.
//
//   class MySource : public vex::BaseDataSource {
//       bool AddDataBlock(const vex::CDataBlock& block) override;  // defined by the component
//   };
#pragma once

namespace vex {

class CDataBlock;        // one time-tagged block of data elements
class CAttributeMap;     // attribute values by name
class Compform;          // a computation
class BaseDevice;        // a device driver
class CDocument;         // a document of the application framework
class DataSubscription;  // a subscriber record of a data source
class CenterLine;        // the centre line that line data is measured along

// How a time is addressed in a data source's buffer for interpolation. The
// values belong to the data-source implementations; any int may be stored.
enum ADDR_MODE : int {};

}  // namespace vex
