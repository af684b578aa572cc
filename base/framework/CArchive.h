// CArchive.h - a buffered reader or writer in front of any ByteStream (a
// file, a memory file, an atomic save), with a 4096-byte buffer.
//
// An archive either loads or stores, fixed at construction. The stream must
// outlive the archive. Writes reach the stream when the buffer fills, on
// Flush() and on Close() (also run by the destructor, which cannot report a
// failure). Text lines work as in CStdioFile: LF or CR LF on reading, CR LF
// on writing, UTF-8 unless another textencoding::type is chosen.
//
//   vex::MemFile memory;
//   vex::CArchive archive(memory, vex::CArchive::store);
//   archive.WriteString(u"[General]\n");
//   archive.Close();  // memory now holds "[General]\r\n"
#pragma once

#include <base/Export.h>
#include <base/framework/ByteStream.h>
#include <base/framework/CString.h>
#include <base/framework/FileIoError.h>
#include <base/framework/StreamBuffer.h>
#include <base/framework/TextEncodingType.h>

#include <cstddef>

namespace vex {

class VEXBASE_API CArchive {
  public:
    enum Mode { store = 0, load = 1 };
    static constexpr std::size_t kBufferSize = 4096;

    CArchive(ByteStream& stream, Mode mode, textencoding::type encoding = textencoding::utf8);
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    bool IsLoading() const { return mode_ == load; }
    bool IsStoring() const { return mode_ == store; }
    // The stream, or null after Close().
    ByteStream* GetFile() const { return stream_; }

    void SetEncoding(textencoding::type encoding) { encoding_ = encoding; }
    textencoding::type GetEncoding() const { return encoding_; }

    // Loading: reads up to size bytes; returns how many (0 at the end or on
    // failure). Storing: 0 with a failure.
    std::size_t Read(void* buffer, std::size_t size);
    // Storing: buffers the bytes, writing full buffers to the stream.
    // Loading: false.
    bool Write(const void* data, std::size_t size);
    // The next line without its LF or CR LF; false at the end of the stream
    // (line unchanged) or on a failure. Loading only.
    bool ReadString(CString& line);
    // Text with each LF as CR LF; no line end is added. Storing only.
    bool WriteString(const CString& text);

    // Storing: writes the buffered bytes to the stream (without asking the
    // stream to flush itself). Loading: gives back the bytes read ahead, so
    // that the stream is positioned after the last byte handed out.
    bool Flush();
    // Flush() and detach from the stream; later calls fail with invalidFile.
    bool Close();

    // Why the last operation failed; cause none after a success.
    const FileIoError& GetError() const { return error_; }

  private:
    bool Fail(FileIoError error);
    bool Usable(Mode wanted);

    ByteStream* stream_;
    Mode mode_;
    textencoding::type encoding_;
    detail::StreamBuffer buffer_;
    FileIoError error_;
};

}  // namespace vex
