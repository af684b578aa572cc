// The file object's text: opening, the line syntax reader, the writer and
// the save routines.
#include <base/config/FileObject.h>

#include <base/config/SectionData.h>
#include <base/errors/FileError.h>
#include <base/errors/GlobalErrorList.h>
#include <base/framework/AtomicFile.h>
#include <base/framework/FileStream.h>
#include <base/framework/TextEncoding.h>
#include <base/platform/FileSystem.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

namespace vex {
namespace {

using View = std::u16string_view;

bool IsSpace(char16_t c) {
    return IsSpaceChar(c);
}

View TrimLeft(View text) {
    std::size_t i = 0;
    while (i < text.size() && IsSpace(text[i]))
        ++i;
    return text.substr(i);
}

View TrimRight(View text) {
    std::size_t n = text.size();
    while (n > 0 && IsSpace(text[n - 1]))
        --n;
    return text.substr(0, n);
}

View Trim(View text) {
    return TrimLeft(TrimRight(text));
}

void TrimRight(std::u16string& text) {
    text.resize(TrimRight(View(text)).size());
}

// Decodes one line of UTF-8 into text (replacing its content) as
// Utf8ToUtf16 decodes it, with runs of ASCII, the bulk of a settings file,
// widened directly. Splitting at ASCII bytes changes nothing: they never
// belong to a multi-byte sequence. text keeps its capacity from line to line.
void DecodeUtf8Line(std::string_view bytes, std::u16string& text) {
    // UTF-8 never takes fewer code units than UTF-16.
    text.resize(bytes.size());
    char16_t* out = text.data();
    const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const end = in + bytes.size();
    while (in != end) {
        // Eight ASCII bytes at a time where the text allows.
        if (end - in >= 8) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, in, sizeof eight);
            if ((eight & 0x8080808080808080u) == 0) {
                for (int k = 0; k < 8; ++k)
                    out[k] = in[k];
                in += 8;
                out += 8;
                continue;
            }
        }
        if (*in < 0x80) {
            *out++ = *in++;
            continue;
        }
        const auto* const run = in;
        while (in != end && *in >= 0x80)
            ++in;
        const std::u16string decoded = Utf8ToUtf16(std::string_view(
            reinterpret_cast<const char*>(run), static_cast<std::size_t>(in - run)));
        out = std::copy(decoded.begin(), decoded.end(), out);
    }
    text.resize(static_cast<std::size_t>(out - text.data()));
}

// Where "//" starts in text, or npos.
std::size_t FindComment(View text) {
    const char16_t* const begin = text.data();
    const char16_t* const last = begin + text.size();
    for (const char16_t* p = begin; p + 1 < last; ++p) {
        if (p[0] == u'/' && p[1] == u'/') return static_cast<std::size_t>(p - begin);
    }
    return View::npos;
}

// The same in UTF-8 text, a "/" at a time.
std::size_t FindComment(std::string_view text) {
    std::size_t from = 0;
    for (;;) {
        const std::size_t slash = text.find('/', from);
        if (slash == std::string_view::npos || slash + 1 >= text.size()) {
            return std::string_view::npos;
        }
        if (text[slash + 1] == '/') return slash;
        from = slash + 1;
    }
}

}  // namespace

// Turns physical lines into extra lines, sections and items of the object,
// by the rules of the settings-file syntax:
// - a line starting with ";" is a comment; it also drops the text gathered
//   from continuation lines before it, so a continued entry followed by a
//   comment line is lost (existing files rely on this);
// - "//" starts an end-of-line comment, even inside a value;
// - a backslash at the end of a line joins the next line, without separator;
// - "[name]" starts (or continues) a section; "[Encrypted]" ends the read;
// - "key = value" lines need a "=" after at least one character.
// Lines before the first section header are kept as they are.
class FileObject::Loader {
  public:
    explicit Loader(FileObject& file) : m_file(file) {}

    // Takes the complete lines at the start of bytes (all of them when last
    // is set) and removes them from bytes; false when the read must stop.
    // Lines are split as the line reader splits them: at LF, less a CR
    // before it.
    bool Bytes(std::string_view& bytes, textencoding::type encoding, bool last) {
        std::string_view lines = bytes;
        if (!last) lines = lines.substr(0, lines.rfind('\n') + 1);  // npos + 1 is 0
        bytes.remove_prefix(lines.size());
        ExpectSections(lines);
        while (!lines.empty()) {
            const void* const lf = std::memchr(lines.data(), '\n', lines.size());
            const std::size_t length =
                lf ? static_cast<std::size_t>(static_cast<const char*>(lf) - lines.data())
                   : lines.size();
            std::string_view raw = lines.substr(0, length);
            lines.remove_prefix(lf ? length + 1 : length);
            if (lf && !raw.empty() && raw.back() == '\r') raw.remove_suffix(1);
            bool more = true;
            if (encoding == textencoding::multibyte) {
                m_line = AnsiToUtf16(raw);
                more = Line(m_line);
            } else if (m_sawHeader && !m_file.m_noEndLineComment &&
                       (raw.empty() || raw.front() != ';')) {
                // After the first header the physical line is not kept, so
                // an end-of-line comment is cut before it is decoded: "/"
                // never occurs inside a multi-byte sequence.
                const std::size_t comment = FindComment(raw);
                DecodeUtf8Line(comment == std::string_view::npos ? raw : raw.substr(0, comment),
                               m_line);
                more = Text(m_line, m_line);
            } else {
                DecodeUtf8Line(raw, m_line);
                more = Line(m_line);
            }
            if (!more) return false;
        }
        return true;
    }

    // Takes the next physical line; false when the read must stop here.
    bool Line(View line) {
        if (!line.empty() && line.front() == u';') {
            if (!m_sawHeader) {
                KeepPendingLines();
                m_file.m_extraLines.emplace_back(line);
            }
            m_pending.clear();
            m_pendingLines.clear();
            m_continuing = false;
            return true;
        }
        View text = line;
        if (!m_file.m_noEndLineComment) {
            if (const std::size_t comment = FindComment(text); comment != View::npos) {
                text = text.substr(0, comment);
            }
        }
        return Text(line, text);
    }

    // The line less its comment: the text of a physical line that is not a
    // comment line.
    bool Text(View line, View text) {
        if (!m_sawHeader) m_pendingLines.emplace_back(line);
        if (!m_continuing) {
            // The common case works on the line itself, without a copy.
            text = TrimRight(text);
            if (!Continues(text)) return Complete(text);
            m_pending.assign(TrimRight(text.substr(0, text.size() - 1)));
            m_continuing = true;
            return true;
        }
        m_pending.append(text);
        TrimRight(m_pending);
        if (Continues(m_pending)) {
            m_pending.pop_back();
            TrimRight(m_pending);
            return true;
        }
        m_continuing = false;
        const bool more = Complete(m_pending);
        m_pending.clear();
        return more;
    }

    // Ends the input: text still waiting for a continuation line counts as
    // a line of its own. True when a section header was seen.
    bool Finish() {
        if (m_continuing) {
            m_continuing = false;
            Complete(m_pending);
            m_pending.clear();
        }
        KeepPendingLines();
        return m_sawHeader;
    }

  private:
    bool Continues(View text) const {
        return !m_file.m_noContinuation && !text.empty() && text.back() == u'\\';
    }

    void KeepPendingLines() {
        for (CString& physical : m_pendingLines)
            m_file.m_extraLines.push_back(std::move(physical));
        m_pendingLines.clear();
    }

    // One logical line, trimmed on the right.
    bool Complete(View text) {
        text = TrimLeft(text);
        if (!text.empty() && text.front() == u'[') {
            const std::size_t close = text.rfind(u']');
            const View name = close == View::npos ? View() : Trim(text.substr(1, close - 1));
            m_section = &m_file.SectionForWriting(CString(name), false);
            if (m_headers < m_expected.size() && m_section->IsEmpty()) {
                m_section->Reserve(m_expected[m_headers]);
            }
            ++m_headers;
            m_sawHeader = true;
            m_pendingLines.clear();
            // What follows "[Encrypted]" is enciphered and not for this reader.
            return name != u"Encrypted";
        }
        if (!m_sawHeader) {
            KeepPendingLines();
            return true;
        }
        const std::size_t equals = text.find(u'=');
        if (equals != View::npos && equals > 0) {
            m_section->Set(CString(TrimRight(text.substr(0, equals))),
                           CString(Trim(text.substr(equals + 1))));
        }
        return true;
    }

    // Notes the number of lines after each header line of the text, in
    // order: room reserved for a new section's items, so that a large
    // file's sections are not moved as they grow. Only a hint; the counts
    // need not be right.
    void ExpectSections(std::string_view bytes) {
        const char* p = bytes.data();
        const char* const end = p + bytes.size();
        bool counting = false;
        while (p != end) {
            const char* first = p;
            while (first != end && (*first == ' ' || *first == '\t'))
                ++first;
            if (first != end && *first == '[') {
                m_expected.push_back(0);
                counting = true;
            } else if (counting) {
                ++m_expected.back();
            }
            const void* const lf = std::memchr(first, '\n', static_cast<std::size_t>(end - first));
            p = lf ? static_cast<const char*>(lf) + 1 : end;
        }
    }

    FileObject& m_file;
    std::u16string m_line;     // the line being read, decoded
    std::u16string m_pending;  // text of a line continued on the next one
    bool m_continuing = false;
    // Before the first header: the physical lines that make up the pending
    // text, kept as extra lines unless they turn out to be a header.
    std::vector<CString> m_pendingLines;
    bool m_sawHeader = false;
    detail::SectionData* m_section = nullptr;
    std::vector<std::size_t> m_expected;
    std::size_t m_headers = 0;
};

namespace {

// Gives back, when a load ends, the room reserved for items that the file
// did not hold.
template <class Sections>
struct ShrinkAfterLoadingT {
    Sections& sections;
    ~ShrinkAfterLoadingT() {
        sections.ForEach([](const CString&, std::shared_ptr<detail::SectionData>& data) {
            data->ShrinkToFit();
        });
    }
};

// Files are read a piece at a time: a large file's bytes are never all in
// memory beside its parsed content.
constexpr std::size_t kReadPiece = std::size_t{1} << 20;

}  // namespace

// --- opening --------------------------------------------------------------------

std::unique_ptr<CStdioFile> FileObject::open(const CString& name, unsigned flags) const {
    if (name.IsEmpty()) {
        m_errorStatus = statusNoFileName;
        return nullptr;
    }
    const bool create = (flags & CFile::modeCreate) != 0;
    textencoding::type encoding = textencoding::utf8;
    // The probe looks at the start of an existing file. Byte-order marks
    // are deliberately not recognised: a marked file reads as UTF-8, its
    // mark as the character U+FEFF at the start of the first line, as the
    // suite's readers have always treated it.
    FileStream probe;
    if (!create && probe.Open(name, CFile::modeRead | CFile::shareDenyWrite)) {
        char start[11] = {};
        const std::size_t got = probe.Read(start, sizeof start);
        if (got == sizeof start && std::memcmp(start, "[Encrypted]", sizeof start) == 0) {
            encoding = textencoding::multibyte;
        }
        probe.Close();
    }
    unsigned access = CFile::modeRead;
    if (create) {
        access = CFile::modeCreate | CFile::modeReadWrite | (flags & CFile::modeNoTruncate);
    } else if ((flags & (CFile::modeWrite | CFile::modeReadWrite)) != 0) {
        access = CFile::modeReadWrite;
    }
    auto file = std::make_unique<CStdioFile>();
    if (!file->Open(name, access | (flags & CFile::shareMask), encoding)) {
        m_errorStatus = statusFileNotOpened;
        return nullptr;
    }
    return file;
}

bool FileObject::OpenFile(const CString& name, unsigned flags) {
    m_errorStatus = statusOk;
    if (m_closeBeforeOpen) {
        MakeEmpty();
        m_initialised = false;
        m_fileName.Empty();
    }
    const std::unique_ptr<CStdioFile> file = open(name, flags);
    if (!file) {
        if (m_errorStatus == statusFileNotOpened) {
            GlobalErrorList::Get().Insert(FileError(name, FileError::OPEN), m_errorContext);
        }
        return false;
    }
    m_fileName = name;
    if ((flags & CFile::modeCreate) != 0) {
        file->Close();
        return Loaded(true);
    }
    // Read in large pieces rather than by the line reader: the lines are
    // the same, and a large file loads several times faster.
    const textencoding::type encoding = file->GetEncoding();
    Loader loader(*this);
    const ShrinkAfterLoadingT<SectionTable> shrink{m_sections};
    std::vector<char> buffer(kReadPiece);
    std::size_t held = 0;  // bytes of an incomplete line at the start
    for (;;) {
        if (held == buffer.size()) buffer.resize(2 * buffer.size());  // a very long line
        const std::size_t read = file->Read(buffer.data() + held, buffer.size() - held);
        if (file->GetError().IsError()) {
            m_errorStatus = statusFileNotOpened;
            GlobalErrorList::Get().Insert(FileError(name, FileError::READ), m_errorContext);
            return false;
        }
        const bool last = read == 0;
        std::string_view bytes(buffer.data(), held + read);
        if (!loader.Bytes(bytes, encoding, last)) return Loaded(true);
        if (last) break;
        std::memmove(buffer.data(), bytes.data(), bytes.size());
        held = bytes.size();
    }
    return Loaded(loader.Finish());
}

bool FileObject::FileOpen(const CString& name, unsigned flags) {
    return OpenFile(name, flags);
}

bool FileObject::FileOpen_NoFileClose(const CString& name, unsigned flags) {
    // What a failure restores. The sections keep their data objects, so
    // that handles on them stay attached.
    const SectionTable sections = m_sections;
    std::vector<std::pair<detail::SectionData*, detail::SectionData>> contents;
    contents.reserve(static_cast<std::size_t>(sections.Count()));
    sections.ForEach([&](const CString&, const std::shared_ptr<detail::SectionData>& data) {
        contents.emplace_back(data.get(), *data);
    });
    const std::vector<CString> extraLines = m_extraLines;
    const CString fileName = m_fileName;
    const bool initialised = m_initialised;
    const bool closeBeforeOpen = std::exchange(m_closeBeforeOpen, false);
    const auto restore = [&] {
        m_sections = sections;
        for (auto& [data, content] : contents)
            *data = std::move(content);
        m_extraLines = extraLines;
        m_fileName = fileName;
        m_initialised = initialised;
    };
    bool opened = false;
    try {
        opened = OpenFile(name, flags);
    } catch (...) {
        m_closeBeforeOpen = closeBeforeOpen;
        restore();
        throw;
    }
    m_closeBeforeOpen = closeBeforeOpen;
    if (!opened) restore();
    return opened;
}

bool FileObject::FileOpen(MemFile& file, const CString& name) {
    m_errorStatus = statusOk;
    if (m_closeBeforeOpen) {
        MakeEmpty();
        m_initialised = false;
    }
    m_fileName = name;
    const std::span<const std::byte> data = file.Data();
    const std::size_t from =
        static_cast<std::size_t>(std::min<std::uint64_t>(file.GetPosition(), data.size()));
    const std::string_view bytes(reinterpret_cast<const char*>(data.data()) + from,
                                 data.size() - from);
    file.SeekToEnd();
    return LoadBytes(bytes, textencoding::utf8);
}

bool FileObject::Read(CStdioFile& file) {
    m_errorStatus = statusOk;
    return load(file);
}

bool FileObject::Read(CArchive& archive) {
    m_errorStatus = statusOk;
    return load(archive);
}

bool FileObject::Loaded(bool sawSection) {
    if (!sawSection) {
        m_errorStatus = statusNoSections;
        return false;
    }
    if (!AfterFileOpen()) return false;
    m_initialised = true;
    return true;
}

bool FileObject::LoadBytes(std::string_view bytes, textencoding::type encoding) {
    Loader loader(*this);
    const ShrinkAfterLoadingT<SectionTable> shrink{m_sections};
    if (!loader.Bytes(bytes, encoding, true)) return Loaded(true);
    return Loaded(loader.Finish());
}

template <class LineSource>
bool FileObject::load(LineSource& source) {
    Loader loader(*this);
    CString line;
    while (source.ReadString(line)) {
        if (!loader.Line(line.View())) return Loaded(true);
    }
    if (source.GetError().IsError()) {
        m_errorStatus = statusFileNotOpened;
        GlobalErrorList::Get().Insert(FileError(m_fileName, FileError::READ), m_errorContext);
        return false;
    }
    return Loaded(loader.Finish());
}

bool FileObject::load(CStdioFile& file) {
    return load<CStdioFile>(file);
}

bool FileObject::load(CArchive& archive) {
    return load<CArchive>(archive);
}

// --- writing --------------------------------------------------------------------

template <class Text>
void FileObject::RenderTo(Text& text) const {
    const View separator = m_compact ? View(u"=") : View(u" = ");
    for (const CString& line : m_extraLines) {
        text.Append(line.View());
        text.EndLine();
    }
    m_sections.ForEach([&](const CString& name, const std::shared_ptr<detail::SectionData>& data) {
        text.Append(u"[");
        text.Append(name.View());
        text.Append(u"]");
        text.EndLine();
        data->ForEach([&](const CString& key, const CString& value) {
            text.Append(key.View());
            text.Append(separator);
            text.Append(value.View());
            text.EndLine();
        });
        if (!m_compact) text.EndLine();
    });
}

namespace {

// Counts the code units of the text.
struct LengthOfText {
    std::size_t length = 0;
    void Append(View piece) { length += piece.size(); }
    void EndLine() { ++length; }
};

// The text with LF line ends.
struct Utf16Text {
    std::u16string text;
    void Append(View piece) { text.append(piece); }
    void EndLine() { text.push_back(u'\n'); }
};

// The text as UTF-8 with CR LF line ends, as a text-mode stream writes it
// (an LF inside a value becomes CR LF too). Written through a cursor into
// room made ahead, so that each piece costs one check of the room; ASCII,
// the bulk of a settings file, is copied directly.
struct Utf8CrLfText {
    std::string bytes;  // sized ahead; the first used bytes are the text
    std::size_t used = 0;

    // Room for n more bytes at the cursor.
    char* Room(std::size_t n) {
        if (bytes.size() - used < n) bytes.resize(std::max(2 * bytes.size(), used + n));
        return bytes.data() + used;
    }
    void Append(View piece) {
        // No UTF-16 code unit takes more than three bytes; LF takes two.
        char* out = Room(3 * piece.size());
        const char16_t* p = piece.data();
        const char16_t* const end = p + piece.size();
        // Blocks of plain ASCII are narrowed sixteen characters at a time,
        // in loops without early exits that compile to vector instructions.
        while (end - p >= 16) {
            bool special = false;
            for (int k = 0; k < 16; ++k)
                special |= p[k] >= 0x80 || p[k] == u'\n';
            if (special) break;
            for (int k = 0; k < 16; ++k)
                out[k] = static_cast<char>(p[k]);
            p += 16;
            out += 16;
        }
        while (p != end) {
            if (*p < 0x80) {
                if (*p == u'\n') *out++ = '\r';
                *out++ = static_cast<char>(*p++);
                continue;
            }
            const char16_t* const run = p;
            while (p != end && *p >= 0x80)
                ++p;
            const std::string encoded = Utf16ToUtf8(View(run, static_cast<std::size_t>(p - run)));
            out = std::copy(encoded.begin(), encoded.end(), out);
        }
        used = static_cast<std::size_t>(out - bytes.data());
    }
    void EndLine() {
        char* out = Room(2);
        out[0] = '\r';
        out[1] = '\n';
        used += 2;
    }
};

}  // namespace

std::u16string FileObject::Render() const {
    LengthOfText length;
    RenderTo(length);
    Utf16Text text;
    text.text.reserve(length.length);
    RenderTo(text);
    return std::move(text.text);
}

std::string FileObject::RenderUtf8() const {
    LengthOfText length;
    RenderTo(length);
    Utf8CrLfText text;
    // Line ends take a byte more, and a little non-ASCII text more still.
    text.bytes.resize(length.length + length.length / 16 + 64);
    RenderTo(text);
    text.bytes.resize(text.used);
    return std::move(text.bytes);
}

bool FileObject::ReportSaveFailure(const CString& name) const {
    m_errorStatus = statusFileNotOpened;
    GlobalErrorList::Get().Insert(FileError(name, FileError::WRITE), m_errorContext);
    return false;
}

bool FileObject::FileSave(const CString& name, unsigned flags) const {
    m_errorStatus = statusOk;
    const CString& target = name.IsEmpty() ? m_fileName : name;
    if (target.IsEmpty()) {
        m_errorStatus = statusNoFileName;
        return false;
    }
    if ((flags & CFile::modeCreate) == 0 &&
        platform::GetPathKind(target.View()) != platform::PathKind::file) {
        return ReportSaveFailure(target);
    }
    const std::string bytes = RenderUtf8();
    AtomicFile save;
    if (!save.Open(target) || !save.Write(bytes.data(), bytes.size()) || !save.Commit()) {
        return ReportSaveFailure(target);
    }
    return true;
}

bool FileObject::Write(CStdioFile& file) const {
    m_errorStatus = statusOk;
    if (!file.WriteString(CString(Render()))) return ReportSaveFailure(file.GetFilePath());
    return true;
}

bool FileObject::FileSave(CStdioFile& file) const {
    if (!Write(file)) return false;
    if (!file.Flush()) return ReportSaveFailure(file.GetFilePath());
    return true;
}

bool FileObject::Write(CArchive& archive) const {
    m_errorStatus = statusOk;
    if (!archive.WriteString(CString(Render()))) return ReportSaveFailure(m_fileName);
    return true;
}

bool FileObject::FileSave(MemFile& file) const {
    m_errorStatus = statusOk;
    const std::string bytes = RenderUtf8();
    if (!file.Write(bytes.data(), bytes.size())) return ReportSaveFailure(m_fileName);
    return true;
}

bool FileObject::FileSave(CharBuffer& buffer, textencoding::type encoding) const {
    m_errorStatus = statusOk;
    const std::u16string text = Render();
    if (encoding == textencoding::multibyte) {
        buffer.AppendText(Utf16ToAnsi(text));
    } else {
        buffer.AppendText(View(text));
    }
    return true;
}

}  // namespace vex
