// Names of members, declarations of their parameters, and the roles of these.
#include <algorithm>
#include <cctype>
#include <cstring>
#include <sstream>
#include <stdexcept>

#include "catalog.h"

namespace catalog {
namespace {

struct Code {
    const char *code, *type;  // in names, and in C
    Element element;
    int bytes;
};
constexpr Code codes[] = {
    {"1u", "", Element::u1, 1},
    {"8u", "uint8_t", Element::u8, 1},
    {"24u", "", Element::u8, 1},  // three of them, as the layout of a member says
    {"8s", "int8_t", Element::s8, 1},
    {"16u", "uint16_t", Element::u16, 2},
    {"16s", "int16_t", Element::s16, 2},
    {"32u", "uint32_t", Element::u32, 4},
    {"32s", "int32_t", Element::s32, 4},
    {"32s", "int", Element::s32, 4},
    {"64s", "int64_t", Element::s64, 8},
    {"64u", "uint64_t", Element::u64, 8},
    {"32f", "float", Element::f32, 4},
    {"64f", "double", Element::f64, 8},
    {"16sc", "Complex16s", Element::sc16, 4},
    {"32sc", "Complex32s", Element::sc32, 8},
    {"32fc", "Complex32f", Element::fc32, 8},
};
// Points, rectangles and objects are arrays of these.
constexpr std::pair<const char*, Element> structures[] = {{"ResizeSpec", Element::u8},   {"ResizeYUVSpec", Element::u8},
                                                          {"WarpSpec", Element::u8},     {"ImagePoint", Element::s32},
                                                          {"ImagePointL", Element::s64}, {"ImageRect", Element::s32},
                                                          {"ImageRectL", Element::s64}};
Element elementOf(const std::string& text) {
    for (const auto& [type, element] : structures)
        if (text == type) return element;
    for (const Code& c : codes)
        if (text == c.code || text == c.type) return c.element;
    return Element::none;
}

// The role of a parameter by its type and its name: the first row that fits.  Names are separated by blanks.
enum Form { value, read, written, pointers };
struct RoleRow {
    Role role;
    Form form;
    const char* names;
    const char* enumeration = "";
    double usual = 0;
    const char* count = "";
};
constexpr RoleRow roles[] = {
    {Role::image, read, "src src1 src2"},
    {Role::image, written, "dst srcDst dstMin dstMax ptr"},
    {Role::planes, pointers, "src src1 src2 dst srcDst"},
    {Role::mask, read, "mask"},
    {Role::map, read, "pxMap pyMap"},
    {Role::step, value,
     "srcStep src1Step src2Step dstStep srcDstStep maskStep dstMinStep dstMaxStep xMapStep yMapStep"},
    {Role::step, read, "srcStep dstStep"},
    {Role::size, value, "roiSize srcRoiSize dstRoiSize srcSize dstSize src1Size src2Size dstTileSize"},
    {Role::size, value, "maskSize kernelSize windowSize", "", 5},
    {Role::size, value, "blockSize", "", 16},
    {Role::size, value, "width height roiWidth"},
    {Role::point, value, "anchor", "", 2},
    {Role::point, value, "dstOffset roiOffset"},
    {Role::rectangle, value, "srcRoi dstRoi"},
    {Role::constant, value, "value valueLT valueGT valLE delta", "", 5},
    {Role::constant, value, "threshold thresholdGT", "", 170},
    {Role::constant, value, "thresholdLT", "", 85},
    {Role::constant, value, "lowerBound", "", 50},
    {Role::constant, value, "upperBound", "", 200},
    {Role::constant, value, "alpha alpha1 alpha2", "", 100},
    {Role::constant, value, "valGT hiVal high vMax", "", 255},
    {Role::constant, value, "loVal low vMin mean aVal offset colorKey"},
    {Role::constant, value, "stdDev mVal slope", "", 2},
    {Role::constant, read, "value valueLT valueGT threshold thresholdLT thresholdGT lowerBound upperBound colorKey"},
    {Role::scale, value, "scaleFactor"},
    {Role::border, value, "borderType", "BORDER_", BORDER_REPL},
    {Role::borderValue, value, "borderValue", "", 5},
    {Role::borderValue, read, "borderValue"},
    {Role::option, value, "dataType srcDataType dstDataType", "DATATYPE_", DATATYPE_8U},
    {Role::option, value, "roundMode", "ROUND_", ROUND_NEAR},
    {Role::option, value, "hint", "HINT_"},
    {Role::option, value, "cmpOp", "CMP_", CMP_GREATER},
    {Role::option, value, "alphaType", "ALPHA_"},
    {Role::option, value, "axis", "AXIS_", AXIS_VERTICAL},
    {Role::option, value, "interpolation", "INTERP_", INTERP_LINEAR},
    {Role::option, value, "algType", "CONV_"},
    {Role::option, value, "kernelType", "DATATYPE_"},
    {Role::option, value, "direction", "WARP_"},
    {Role::option, value, "chromaFormat chromaSite", "CHROMA_"},
    {Role::option, value, "mask", "MASK_"},
    {Role::option, value, "flags uniform antialiasing smoothEdge"},
    {Role::number, value, "numChannels", "", 1},
    {Role::number, value, "top left", "", 16},
    {Role::number, value, "nBitSize", "", 8},
    {Role::number, value, "channel dstBitOffset srcBitOffset divisor seed sigma B shiftX shiftY"},
    {Role::number, value, "xOrder yOrder", "", 1},
    {Role::number, value, "numLobes weight", "", 3},
    {Role::number, value, "C", "", 0.5},
    {Role::number, value, "angle xCenter yCenter xShift yShift", "", 31},
    {Role::table, read, "dstOrder nLevels lowerLevel upperLevel coeffs quad"},
    {Role::table, read, "pTable", "", 0, "1 << nBitSize"},
    {Role::table, pointers, "pTables", "", 0, "1 << nBitSize"},
    {Role::table, pointers, "pValues", "", 0, "nLevels"},
    {Role::buffer, written, "buffer"},
    {Role::spec, read, "pSpec spec pState"},
    {Role::spec, written, "pSpec spec pState pSrcDstState"},
    {Role::initBuffer, written, "initBuf"},
    {Role::kernel, read, "pKernel"},
    {Role::result, written, "value sum mean pMin pMax pIndexX pIndexY pCounts pThreshold pDp pQuality pValue"},
    {Role::result, written, "pHu", "", 0, "7"},
    {Role::result, written, "stepOut pBufferSize bufSize pSize pSpecSize specSize pStateSize initBufSize"},
    {Role::result, written, "borderSize", "", 0, "4"},
    {Role::result, written, "srcOffset srcRoi xShift yShift coeffs quad bound"},
    {Role::result, written, "pHist", "", 0, "nLevels - 1"},
    {Role::result, pointers, "pHist", "", 0, "nLevels - 1"},
};
bool listed(const char* names, const std::string& name) {
    std::istringstream in(names);
    for (std::string one; in >> one;)
        if (one == name) return true;
    return false;
}
void assignRole(Parameter& p, const std::string& member) {
    const Form form = p.planes ? pointers : !p.pointer ? value : p.written ? written : read;
    if (form == pointers && p.name == "pLevels")  // given, or asked for
        return void((p.role = p.written ? Role::result : Role::table, p.count = "nLevels"));
    for (const RoleRow& row : roles)
        if (row.form == form && listed(row.names, p.name)) {
            p.role = row.role, p.enumeration = row.enumeration, p.usual = row.usual, p.count = row.count;
            return;
        }
    throw std::runtime_error(member + ": its argument " + p.declaration + " has no role in tools/names.cpp");
}

// "uint8_t* const dst[3]", "const double coeffs[2][3]", "const float* const* pLevels", "ImageSize roiSize".
Parameter parameter(std::string text, const std::string& member) {
    Parameter p;
    text.erase(0, text.find_first_not_of(' '));
    p.declaration = text;
    const size_t bracket = text.find('[');
    const bool array = bracket != text.npos;
    std::string head = text.substr(0, bracket);
    const auto stars = std::count(head.begin(), head.end(), '*');
    if (stars == 1 && array) p.planes = text[bracket + 1] - '0';
    if (stars == 2) p.planes = 4;
    p.pointer = array || stars;
    std::replace(head.begin(), head.end(), '*', ' ');
    std::vector<std::string> parts;
    std::istringstream in(head);
    for (std::string word; in >> word;)
        if (word != "const") parts.push_back(word);
    if (parts.size() != 2) throw std::runtime_error(member + ": what is " + text + "?");
    p.type = parts[0], p.name = parts[1];
    p.element = elementOf(p.type);
    if (p.pointer && p.type.starts_with("ImageRect"))  // four of them
        p.element = p.type == "ImageRect" ? Element::s32 : Element::s64;
    p.written = p.pointer && text.rfind("const ", 0) != 0;
    assignRole(p, member);
    return p;
}

// "8u32s" is one or two type codes: a code is digits, then letters.
bool readTypes(const std::string& text, Member& m) {
    std::vector<Element> found;
    for (size_t at = 0; at < text.size();) {
        size_t end = at;
        while (end < text.size() && std::isdigit(text[end])) ++end;
        while (end < text.size() && std::isalpha(text[end])) ++end;
        const Element e = elementOf(text.substr(at, end - at));
        if (end == at || e == Element::none) return false;
        found.push_back(e);
        at = end;
    }
    if (found.empty()) return false;
    m.types = text;
    m.source = found.front();
    m.destination = found.back();
    return true;
}

// "C3AC4R", "P4C4R", "AC4MR", "C3CR": one or two channel codes, then the letters.
void readLayout(const std::string& text, Member& m) {
    size_t at = 0;
    for (bool first = true;; first = false) {
        Layout l;
        size_t end = at;
        if (text[end] == 'A') l.alpha = true, ++end;
        if (end + 1 >= text.size() || !std::strchr("CP", text[end]) || !std::isdigit(text[end + 1])) break;
        l.planar = text[end] == 'P';
        l.channels = text[end + 1] - '0';
        m.to = l;
        if (first) m.from = l;
        at = end + 2;
    }
    m.layout = text.substr(0, at);
    m.letters = text.substr(at);
    m.inPlace = m.letters.find('I') != m.letters.npos;
    m.masked = m.letters.find('M') != m.letters.npos;
    m.oneChannel = m.letters.find('C') != m.letters.npos;
}

}  // namespace

int bytesOf(Element element) {
    for (const Code& c : codes)
        if (c.element == element) return c.bytes;
    return 0;
}

std::string stepOf(const std::string& image) {
    const bool map = image == "pxMap" || image == "pyMap";
    return (map ? image.substr(1) : image) + "Step";
}

const char* nameOf(Role role) {
    static const char* const names[] = {"image",  "planes",       "mask",        "map",      "step",
                                        "size",   "point",        "rectangle",   "constant", "scale",
                                        "border", "border value", "option",      "number",   "table",
                                        "buffer", "spec object",  "init buffer", "kernel",   "result"};
    return names[int(role)];
}

std::string Parameter::spelled() const {
    std::string text = declaration;
    const size_t bracket = std::min(text.find('['), text.size());
    text.erase(bracket - name.size(), name.size());
    if (text[std::min(bracket - name.size(), text.size()) - 1] == ' ') text.erase(bracket - name.size() - 1, 1);
    return text;
}

const char* Parameter::direction() const {
    if (role == Role::buffer || role == Role::initBuffer) return "work";
    if (!written) return "in";
    return name == "srcDst" || name == "pSrcDstState" ? "inout" : "out";
}

const Parameter* Member::find(const std::string& parameter) const {
    for (const Parameter& p : params)
        if (p.name == parameter) return &p;
    return nullptr;
}

bool Member::among(const char* layouts) const {
    std::istringstream in(layouts);
    for (std::string one; in >> one;)
        if (one == "*" || one == letters || one == layout + letters) return true;
    return false;
}

Member parse(const std::string& result, const std::string& name, const std::string& list) {
    Member m;
    m.result = result, m.name = name, m.list = list;
    std::istringstream params(list.substr(1, list.size() - 2));
    for (std::string one; std::getline(params, one, ',');)
        if (one != "void") m.params.push_back(parameter(one, name));
    std::istringstream in(name);
    bool typed = false;
    for (std::string part; std::getline(in, part, '_');) {
        if (typed && part != "L" && m.layout.empty()) readLayout(part, m);
        typed = typed || readTypes(part, m);
        m.large = part == "L";
    }
    if (m.types.ends_with("24u")) m.to.channels = 3;  // bytes of a pixel, none of them a channel
    return m;
}

}  // namespace catalog
