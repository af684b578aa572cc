// CStdioFile.h - a buffered file on disk read and written as lines of text,
// with binary reads and writes beside them.
//
// Text is UTF-8 without byte-order mark unless another textencoding::type is
// chosen. ReadString accepts lines ended by LF or CR LF; WriteString writes
// every LF of the text as CR LF, on every platform. Binary Read and Write
// are never translated. No operation throws: failures return false and
// leave a FileIoError in GetError().
//
//   vex::CStdioFile file;
//   if (!file.Open(u"vex.ini", vex::CFile::modeRead | vex::CFile::shareDenyWrite)) return;
//   for (vex::CString line; file.ReadString(line);) ...
#pragma once

#include <base/Export.h>
#include <base/framework/ByteStream.h>
#include <base/framework/CString.h>
#include <base/framework/FileStream.h>
#include <base/framework/StreamBuffer.h>
#include <base/framework/TextEncodingType.h>

namespace vex {

class VEXBASE_API CStdioFile final : public ByteStream {
  public:
    CStdioFile();
    // Closes the file; a failure to write the last buffered bytes is lost
    // then, so call Close() where it matters.
    ~CStdioFile() override;
    CStdioFile(CStdioFile&&) noexcept;
    CStdioFile& operator=(CStdioFile&&) noexcept;

    // Opens path with CFile flags (modeRead, modeWrite or modeReadWrite;
    // modeCreate, modeNoTruncate; share flags, honoured on Windows;
    // typeText and typeBinary are accepted and change nothing) and the text
    // encoding of the line functions. A file already open is closed first.
    // False, with the file closed, when it cannot be opened.
    bool Open(const CString& path, unsigned flags,
              textencoding::type encoding = textencoding::utf8);
    bool IsOpen() const { return file_.IsOpen(); }
    // Writes the buffered bytes and closes; false when either fails (the
    // file is closed all the same). True when it was not open.
    bool Close();
    // The path given to Open, as given; kept after Close.
    const CString& GetFilePath() const { return file_.GetFilePath(); }

    // Changes the encoding of the following line reads and writes.
    void SetEncoding(textencoding::type encoding) { encoding_ = encoding; }
    textencoding::type GetEncoding() const { return encoding_; }

    // Reads the next line into line, without its LF or CR LF (a CR alone is
    // kept; NUL characters are kept). False at the end of the file, with
    // line unchanged, or on a read failure (GetError() tells which). A last
    // line without a line end is still returned. Invalid UTF-8 reads as U+FFFD.
    bool ReadString(CString& line);
    // Writes text, each LF as CR LF; no line end is added.
    bool WriteString(const CString& text);

    std::size_t Read(void* buffer, std::size_t size) override;
    bool Write(const void* data, std::size_t size) override;
    bool Seek(std::int64_t offset, CFile::SeekPosition from) override;
    std::uint64_t GetPosition() const override;
    std::uint64_t GetLength() const override;
    // Writes the buffered bytes and waits until they are on the storage device.
    bool Flush() override;

  private:
    bool Checked(bool ok, const FileIoError& error);

    FileStream file_;
    detail::StreamBuffer buffer_;
    textencoding::type encoding_ = textencoding::utf8;
};

}  // namespace vex
