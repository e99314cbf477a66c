// Arguments of timed calls: those that depend on what is timed by their names, all others at their usual values.
#include "call.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

Call::Call(const Member& theMember, const Setting& theSetting, const Build& theBuild)
    : member(theMember), setting(theSetting), build(theBuild) {
    const catalog::Member& named = setting.about.empty() ? *member.parts : *findMember(setting.about).parts;
    const size_t letters = named.types.find_first_not_of("0123456789");
    if (letters != std::string::npos) type = named.types.substr(0, named.types.find_first_not_of("usfc", letters));
    toType = named.types.length() > type.length() ? named.types.substr(type.length()) : type;
    fromChannels = named.from.channels;
    toChannels = named.to.channels;
    // In order: the step of an image is known once its pointer is.
    for (const catalog::Parameter& parameter : member.parts->params) slots.push_back(argument(parameter));
}

test::Slot Call::argument(const catalog::Parameter& p) {
    const int64_t bytes = std::max(1, catalog::bytesOf(p.element));
    if (p.planes) return planes(p.name, bytes);
    if (p.pointer) return pointer(p, bytes);
    if (p.type.rfind("ImageSize", 0) == 0) {
        const ImageSizeL size = area(p.name);
        return {size.width, size.height};
    }
    if (p.role == catalog::Role::rectangle) return {0, 0, setting.width, setting.height};
    const double value = number(p);
    test::Slot slot{int64_t(value), int64_t(value)};  // a point has it twice
    const auto single = float(value);
    if (p.type == "float") std::memcpy(&slot.a, &single, sizeof single);
    if (p.type == "double") std::memcpy(&slot.a, &value, sizeof value);
    return slot;
}

void Call::run(const Build& where, void* function, int64_t count) {
    const std::string& result = member.parts->result;
    const auto call = [&](int64_t times) { return member.thunk(function, slots.data(), times); };
    bool failed = false;
    if (result.ends_with('*') && result.rfind("const ", 0) != 0)
        for (; count > 0 && !failed; --count) {  // what is allocated is released, and timed together
            const int64_t given = call(1);
            failed = !given;
            where.release(reinterpret_cast<void*>(given));
        }
    else if (const int64_t last = count > 0 ? call(count) : 0; result == "StatusCode")
        failed = last != STATUS_OK && last != STATUS_WARN_DIV_BY_ZERO;
    if (failed) throw std::runtime_error(where.code + " refused " + member.name);
}

void Call::unknown(const std::string& name) const {
    throw std::runtime_error(std::string(member.name) + ": no timing, as nothing is known of its argument " + name);
}

bool Call::has(const std::string& name) const { return member.parts->find(name); }

const zmv::Facts& Call::facts() const {
    for (const catalog::Family& family : catalog::families())
        for (const catalog::Member& m : family.members)
            if (m.name == member.name) return family.facts;
    throw std::runtime_error(std::string(member.name) + " has no family");
}
bool Call::accepts(const std::string& option, int64_t value) const {
    for (const zmv::Refusal& refusal : facts().refusals)
        if (refusal.bad == zmv::Bad::option && refusal.arguments == option)
            return std::find(refusal.values.begin(), refusal.values.end(), value) != refusal.values.end();
    return false;
}

ImageSizeL Call::area(const std::string& name) const {
    const bool turnsInPlace = std::string(member.name).rfind("zmviTranspose_", 0) == 0 && has("roiSize");
    if (turnsInPlace) return {setting.height, setting.height};
    if (name == "roiSize" || name == "srcRoiSize") return {setting.width, setting.height};
    if (name == "kernelSize") return {kernelSide(), kernelSide()};
    if (name == "src2Size")
        return {std::min<int64_t>(kernelSide(), setting.width), std::min<int64_t>(kernelSide(), setting.height)};
    const bool asSource = name == "dstRoiSize" && !has("srcRoiSize");
    if (name == "srcSize" || name == "src1Size" || asSource) return {setting.width, setting.height};
    if (name == "dstRoiSize") return {setting.width + 2 * setting.border, setting.height + 2 * setting.border};
    if (name == "maskSize") return {setting.mask, setting.mask};
    if (isWarp() && name.rfind("dst", 0) == 0) return {setting.width, setting.height};
    if (name == "dstSize" || name == "dstTileSize") {  // the half, or that of a goal, whose sides are as 16 to 9
        const int64_t width = setting.factor / 100;
        return width ? ImageSizeL{width, width * 9 / 16} : ImageSizeL{setting.width / 2, setting.height / 2};
    }
    if (name == "blockSize") return {16, 16};
    if (name == "windowSize") return {std::min<int64_t>(8, setting.width), std::min<int64_t>(8, setting.height)};
    unknown(name);
}

double Call::number(const catalog::Parameter& p) const {
    const std::string& name = p.name;
    static const std::map<std::string, int> codes = {{"8u", DATATYPE_8U},
                                                     {"16u", DATATYPE_16U},
                                                     {"16s", DATATYPE_16S},
                                                     {"32f", DATATYPE_32F},
                                                     {"64f", DATATYPE_64F}};
    if (const auto step = steps.find(name); step != steps.end()) return double(step->second);
    if (name == "width" || name == "roiWidth") return double(setting.width);
    if (name == "height") return double(setting.height);
    if (name == "top" || name == "left") return setting.border;
    if (name == "maskSize") return setting.mask;
    if (name == "anchor") return kernelSide() / 2;
    if (name == "divisor") return kernelSide() * kernelSide();
    if (name == "kernelType") return type == "64f" ? DATATYPE_64F : wholeTaps() ? DATATYPE_16S : DATATYPE_32F;
    if (name == "dataType" && std::string(member.name).ends_with("Init_64f")) return DATATYPE_64F;
    if (name.ends_with("DataType") && setting.about.empty()) return DATATYPE_16S;  // a pair that all queries take
    if (name == "dataType" || name == "srcDataType") return codes.at(type);
    if (name == "dstDataType") return codes.at(toType);
    if (name == "mask") return setting.mask == 5 && accepts("mask", MASK_5X5) ? MASK_5X5 : MASK_3X3;
    if (name == "numChannels") {
        if (std::strstr(member.name, "MedianGetBufferSize_32f")) return std::max(3, fromChannels);
        const bool three = std::strstr(member.name, "LUT") && setting.about.find("AC4") != std::string::npos;
        return three ? 3 : std::max(1, fromChannels);
    }
    if (name == "interpolation") return has("pxMap") && setting.factor ? setting.factor : INTERP_LINEAR;
    if (p.role == catalog::Role::constant && name.rfind("alpha", 0) == 0) return type == "32f" ? 0.4 : 100;
    if (name == "hint" || name == "alphaType" || name == "scaleFactor") return setting.factor;
    if (name == "axis") return has("slope") ? setting.factor : AXIS_VERTICAL;
    if (name == "uniform") return 1;
    if (name == "chromaFormat") return halvesRows() ? CHROMA_420 : CHROMA_422;
    if (name == "chromaSite") return CHROMA_LEFT;
    if (name == "direction") return setting.factor == forwardWarp ? WARP_FORWARD : WARP_BACKWARD;
    return p.usual;
}

// Coordinates of an image that is turned by some degrees about its middle.
template <class T>
uint8_t* Call::map(const std::string& name) {
    uint8_t* const first = image(name, sizeof(T));
    const double sine = 0.0871557427476582, cosine = 0.9961946980917455;
    const double middleX = double(setting.width) / 2, middleY = double(setting.height) / 2;
    for (int64_t y = 0; y < setting.height; ++y)
        for (int64_t x = 0; x < setting.width; ++x) {
            const double dx = double(x) - middleX, dy = double(y) - middleY;
            const auto at = T(name == "pxMap" ? cosine * dx - sine * dy + middleX : sine * dx + cosine * dy + middleY);
            std::memcpy(first + y * steps.at(catalog::stepOf(name)) + x * int64_t(sizeof(T)), &at, sizeof at);
        }
    return first;
}

void* Call::pointer(const catalog::Parameter& p, int64_t element) {
    using catalog::Role;
    const std::string& name = p.name;
    if (name == "pxMap" || name == "pyMap") return element == 4 ? map<float>(name) : map<double>(name);
    if (name == "coeffs" && isWarp()) return warpCoefficients();
    if (name == "coeffs" || name == "quad") {
        static const double coeffs[] = {0, 1, 2, -1, 0, 30, 0, 0, 1}, square[] = {0, 0, 1, 0, 1, 1, 0, 1, 0},
                            bilinear[] = {0, 0, 1, 2, 0, -1, 0, 30, 0};
        Memory& block = allocate(sizeof square);
        const bool is = std::strstr(member.name, "Bilinear");
        std::memcpy(block.data(), name == "quad" ? square : is ? bilinear : coeffs, sizeof square);
        return block.data();
    }
    if (name == "src" || name == "src1" || name == "src2") return image(name, fromChannels * element);
    if (name == "dst" || name == "srcDst" || name == "dstMin" || name == "dstMax")
        return image(name, toChannels * element);
    if (name == "mask") return image(name, element);
    if (p.role == Role::constant || p.role == Role::borderValue) return allocate(4 * element).data();
    if (name == "dstOrder") {
        // Pixels of another size keep the order of their channels, the others get the first and third exchanged.
        static const int kept[] = {0, 1, 2, 3}, exchanged[] = {2, 1, 0, 3};
        return const_cast<int*>(fromChannels == toChannels ? exchanged : kept);
    }
    if (name == "pKernel") return kernel(element);
    if (name == "buffer") return workBuffer();
    if (name.ends_with("Step")) return planeSteps[name].data();
    if (name == "stepOut" || name == "pStateSize" || name == "pBufferSize" || name == "bufSize") return &answer;
    if (name == "initBuf") return allocate(8 * (area("dstSize").width + area("dstSize").height + 128)).data();
    if (name == "pSpec" || name == "spec" || name == "pState") return specObject();
    if (name == "pSrcDstState") return maker->spec;
    if (name == "pHist") return allocate(bins * element).data();
    if (p.role == Role::result) return allocate(64).data();
    if (name == "pTable") return allocate(bins * toChannels * element).data();
    if (name == "nLevels") return levels<int>(bins + 1, 0);
    if (name == "lowerLevel") return levels<float>(0, 0);
    if (name == "upperLevel") return levels<float>(bins, 0);
    if (name == "ptr") return nullptr;  // release is timed together with allocation; on its own it gets nothing to do
    unknown(name);
}

void* Call::planes(const std::string& name, int64_t element) {
    auto& planes = planePointers.emplace_back();
    const bool real = member.parts->list.find("const float* const* pLevels") != std::string::npos;
    for (int i = 0; i < 4; ++i)
        if (name == "pTables")
            planes.push_back(allocate(bins).data());
        else if (real && setting.factor == 1 && name == "pLevels")
            planes.push_back(unevenLevels());
        else if (name == "pHist" || name == "pLevels" || name == "pValues")
            planes.push_back(real ? static_cast<void*>(levels<float>(0, 2)) : levels<int32_t>(0, 1));
    if (!planes.empty()) return planes.data();
    const int count = name == "src" ? fromChannels : toChannels;
    for (int i = 0; i < count; ++i)
        planes.push_back(image(name, isYUV() && i && count == 2 ? 2 * element : element, i));
    return planes.data();
}

// The first pixel of an image.  Rows follow each other without a gap unless padding is asked for.
uint8_t* Call::image(const std::string& name, int64_t pixel, int plane) {
    const bool isRead = (name.rfind("src", 0) == 0 && name != "srcDst") || name == "mask" || name.ends_with("Map"),
               bordered = has("dstRoiSize") && has("srcRoiSize");
    const bool convolved = has("src2Size");
    ImageSizeL size = area(convolved                         ? name == "src2" ? "src2Size" : "src1Size"
                           : has("dstTileSize")              ? isRead ? "srcSize" : "dstTileSize"
                           : has("srcSize") && name == "src" ? "srcSize"
                           : has("dstRoiSize")               ? bordered && isRead ? "srcRoiSize" : "dstRoiSize"
                                                             : "roiSize");
    if (isYUV() && plane) size = {(size.width + 1) / 2, halvesRows() ? (size.height + 1) / 2 : size.height};
    if (convolved && !isRead) size.width += area("src2Size").width - 1, size.height += area("src2Size").height - 1;
    if (has("srcRoiSize") && !bordered && !isRead) std::swap(size.width, size.height);  // rows become columns
    const bool framed = isRead && facts().reach == zmv::Reach::anchor && !has("borderType") && !has("anchor");
    // Steps count what is read left and right where a kernel is an argument, or a frame is read.
    const int64_t beyond = has("pKernel") && isRead ? kernelSide() - 1 : framed ? 4 : 0;
    const bool bits = (isRead ? member.parts->source : member.parts->destination) == catalog::Element::u1;
    const int64_t row = bits ? (size.width + 7) / 8 : size.width * pixel, step = row + setting.padding + beyond * pixel;
    // Members with an anchor or a frame read round the region; so many rows also cover what lies left and right of it.
    const int64_t margin = has("anchor") || framed ? kernelSide() + kernelSide() / setting.width + 1 : 0;
    Memory& block = allocate(step * (size.height + 2 * margin));
    for (Line& line : block)
        for (uint32_t& word : line.words)
            if (name == "mask")
                word &= 0x01010101;  // half of the pixels, without any order
            else if (name == "src1")
                word |= 0x01010101;  // no zero divisor ends the look for one
            else if (has("pHist") && setting.factor == 1)
                word = 0x05050505;  // the rows of equal pixels that counting does not like

    (isRead ? read : written) = &block;
    reads |= name != "dst";
    inPlace |= name == "srcDst";
    sources += isRead && plane == 0;  // planes are one image
    (isRead ? readBytes : writtenBytes) += row * size.height;
    steps[catalog::stepOf(name)] = step;
    planeSteps[catalog::stepOf(name)][plane] = int(step);
    shortestRow = std::min(shortestRow, row);
    if (name != "mask" && plane == 0) pixels = size.width * size.height;  // the destination comes last
    uint8_t* first = reinterpret_cast<uint8_t*>(block.data()) + margin * step;
    if (name == "srcDst" && bordered) {  // the source is inside, and only the frame is written
        bytes += row * size.height - setting.width * setting.height * pixel;
        return first + setting.border * (step + pixel);
    }
    bytes += row * size.height * (name == "srcDst" ? 2 : 1);
    return first;
}

// The size comes from the family's own query, bound and called like any other member.
void* Call::workBuffer() {
    const std::string name = member.name;
    if (name.rfind("zmviFilter_", 0) == 0) return nullptr;
    const bool filter = name.rfind("zmviFilterBorder_", 0) == 0;
    const bool typed = name.rfind("zmviFilterMedian_", 0) == 0;
    const Member& query =
        findMember(isWarp()     ? "zmviWarpGetBufferSize"
                   : isYUV()    ? "zmviResizeYUVGetBufferSize"
                   : isResize() ? "zmviResizeGetBufferSize_" + type
                                : name.substr(0, name.find('_')) + (filter ? "GetSize" : "GetBufferSize") +
                                      (typed ? "_" + type : ""));
    Setting asked = setting;
    asked.about = name;
    const auto call = query.bind(asked, build);
    call->run(build, build.find(query.name), 1);
    return allocate(call->answer).data();
}

bool Call::isWarp() const { return std::strncmp(member.name, "zmviWarp", 8) == 0; }

// The image turned by 12 degrees about its middle and made smaller or larger, so that all comes from inside, with the
// factor 90 by a quarter turn, with 1 moved by part of a pixel; of maps that can, a little bent.
void* Call::warpCoefficients() {
    const bool forward = setting.factor == forwardWarp, turn = setting.factor == 90, move = setting.factor == 1;
    const double scale = forward ? 1 / 0.7 : 0.7, x = double(setting.width) / 2, y = double(setting.height) / 2;
    const double cosine = turn ? 0 : move ? 1 : 0.9781476007338057 * scale;
    const double sine = turn ? 1 : move ? 0 : 0.20791169081775931 * (forward ? -scale : scale);
    const double x0 = x - (cosine * x - sine * y) + 0.3 * move, y0 = y - (sine * x + cosine * y) + 0.4 * move;
    const double bend = 2e-5 * 1920 / double(setting.width);
    const double affine[] = {cosine, -sine, x0, sine, cosine, y0, 0, 0, 1};
    const double last = 1 - bend * (x + y / 2);  // the denominator, which is 1 in the middle
    const double perspective[] = {cosine + bend * x,
                                  bend * x / 2 - sine,
                                  x0 + (last - 1) * x,
                                  sine + bend * y,
                                  cosine + bend * y / 2,
                                  y0 + (last - 1) * y,
                                  bend,
                                  bend / 2,
                                  last};
    const double bilinear[] = {bend,  cosine - bend * y, -sine - bend * x,  x0 + bend * x * y,
                               -bend, sine + bend * y,   cosine + bend * x, y0 - bend * x * y,
                               0};
    Memory& block = allocate(sizeof affine);
    std::memcpy(block.data(),
                std::strstr(member.name, "Persp")      ? perspective
                : std::strstr(member.name, "Bilinear") ? bilinear
                                                       : affine,
                sizeof affine);
    return block.data();
}

bool Call::isResize() const { return std::string(member.name).rfind("zmviResize", 0) == 0; }
bool Call::isYUV() const { return std::string(member.name).rfind("zmviResizeYUV", 0) == 0; }
// As the execution is named that is timed, or that an object is for.
bool Call::halvesRows() const { return (member.name + setting.about).find("YUV422") == std::string::npos; }

// The method of an execution, for antialiasing the one that a goal names; questions are asked of any object.
std::string Call::resizeInit(std::string family) const {
    const int kernel = setting.factor % 100;
    if (family == "zmviResizeAntialiasing")
        family += kernel == INTERP_CUBIC ? "Cubic" : kernel == INTERP_LANCZOS ? "Lanczos" : "Linear";
    const bool question = family.find("Get") != std::string::npos || family.ends_with("Mode");
    if (isYUV())
        return "zmviResizeYUV" + (question ? "Linear" : family.substr(std::strlen("zmviResizeYUV420"))) + "Init";
    return (question ? "zmviResizeLinear" : family) + "Init_" + type;
}

// Made by the family's own initialisation, which keeps it; initialisations themselves get room for one.
void* Call::specObject() {
    const std::string name = member.name, family = name.substr(0, name.find('_'));
    if (name.find("Init") != name.npos) {
        const int64_t sides =
            isResize() ? setting.width + setting.height + area("dstSize").width + area("dstSize").height : 0;
        return spec = allocate((1 << 20) + 100 * sides).data();
    }
    const std::string user = setting.about.empty() ? family : setting.about.substr(0, setting.about.find('_'));
    const bool filter = family.rfind("zmviFilterBorder", 0) == 0;
    const std::string warp = user == "zmviWarpGetBufferSize" ? "zmviWarpAffineLinear" : user;
    const Member& init = findMember(isWarp()                                ? warp + "Init"
                                    : isResize()                            ? resizeInit(user)
                                    : family.rfind("zmviHistogram", 0) == 0 ? "zmviHistogramUniformInit"
                                    : family.rfind("zmviMoments", 0) == 0   ? "zmviMomentsInit"
                                    : family == "zmviLUT"                   ? "zmviLUT_Init_" + type
                                    : !filter                               ? family + "Init"
                                    : type == "64f"                         ? "zmviFilterBorderInit_64f"
                                    : wholeTaps()                           ? "zmviFilterBorderInit_16s"
                                                                            : "zmviFilterBorderInit_32f");
    Setting asked = setting;
    if (!isYUV() || asked.about.empty()) asked.about = name;
    maker = init.bind(asked, build);
    maker->run(build, build.find(init.name), 1);
    return maker->spec;
}

// Taps of any rank that need all bits, or of a column times a row.
void* Call::kernel(int64_t element) {
    const int side = kernelSide();
    uint8_t* const taps = reinterpret_cast<uint8_t*>(allocate(side * side * element).data());
    for (int k = 0; k < side * side; ++k) {
        const int tap = setting.mask / 100 == 2 ? (k % side + 1) * (k / side + 1) : 37 * k % 101 - 20;
        const auto put = [&](auto as) { std::memcpy(taps + k * element, &as, sizeof as); };
        if (element == 2) put(int16_t(tap));
        if (element == 4) put(float(tap) / 997);
        if (element == 8) put(tap / 997.0);
    }
    return taps;
}

// Written here, so that no page is new to a timed call.  The words are ordinary numbers also when read as floats.
Call::Memory& Call::allocate(int64_t size) {
    Memory& block = memory.emplace_back(size_t(size) / 64 + 1);
    uint32_t state = 12345;
    for (Line& line : block)
        for (uint32_t& word : line.words) word = 0x43000000 | (state = state * 1664525 + 1013904223) >> 8;
    return block;
}

void Call::copySameBytes(int64_t count) {
    const auto size = size_t(bytes / 2);
    for (Memory** block : {&read, &written})  // the member's own images where they are large enough
        if (!*block || (*block)->size() * sizeof(Line) < size) *block = &allocate(bytes / 2);
    for (; count > 0; --count) {
        std::memcpy(written->data(), read->data(), size);
        asm volatile("" ::: "memory");  // each copy counts, though it writes what the one before it wrote
    }
}

void Call::setSameBytes(int64_t count) {
    for (; count > 0; --count) {
        std::memset(written->data(), 5, std::min(written->size() * sizeof(Line), size_t(bytes)));
        asm volatile("" ::: "memory");
    }
}
