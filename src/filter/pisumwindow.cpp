// zmviSumWindow: the sum of a window, with borders; zmviSumWindowRow and Column: sums along one axis, from memory.
#include "filter/boxborder.h"

namespace zmv {
namespace {

template <class T, class D>
class WindowSum {
  public:
    explicit WindowSum(Window window) : takesVectors_(sumsFit<T>(window.area(), INT32_MAX)) {}
    bool takesVectors() const { return takesVectors_; }
    void put(D* dst, Vec<int32_t> sums) const {
        if constexpr (std::is_same_v<D, float>)
            store(dst, toFloat(sums));
        else
            store(dst, sums);
    }
    D one(int64_t sum) const {
        if constexpr (std::is_same_v<D, float>)
            return float(sum);
        else
            return D(std::min<int64_t>(sum, INT32_MAX));
    }

  private:
    bool takesVectors_;
};

template <>
class WindowSum<float, float> {
  public:
    explicit WindowSum(Window) {}
    Vec<float> value(Vec<float> sum) const { return sum; }
};

// Steps are not checked, and a region without pixels is no error: there is nothing to write.
StatusCode lineContract(const void* src, const void* dst, int maskSize, int anchor) {
    return firstOf({pointers(src, dst), refuse(maskSize < 1, STATUS_BAD_MASK_SIZE),
                    refuse(anchor < 0 || anchor >= maskSize, STATUS_BAD_ANCHOR)});
}
bool nothingToDo(Roi roi) { return roi.width < 1 || roi.height < 1; }

template <Layout layout, class T>
StatusCode ownpi_SumWindowRow(Image<const T> src, Image<float> dst, Roi roi, int maskSize, int anchor) {
    if (auto bad = lineContract(src.data, dst.data, maskSize, anchor)) return bad;
    if (nothingToDo(roi)) return STATUS_OK;
    constexpr int n = layout.channels;
    toNearest([&] {
        const WindowSum<T, float> output{Window({maskSize, 1})};
        for (Len y = 0; y < roi.height; ++y) {
            const auto put = [&](auto sums) { putRow(output, dst.row(y), sums, roi.width, n, nullptr); };
            const RowReader<T> reader{src.row(y) - Len(anchor) * n, (roi.width + maskSize - 1) * n};
            output.takesVectors() ? put(RowSums<RowReader<T>, n>(reader, maskSize))
                                  : put(WideRowSums(reader, maskSize, n));
        }
    });
    return STATUS_OK;
}

// Strips of columns whose sums, of type A, stay on the stack.
template <class A, class T>
void columnStrips(Image<const T> src, Image<float> dst, Roi roi, int n, int maskSize, int anchor) {
    const WindowSum<T, float> output{Window({1, maskSize})};
    constexpr Len strip = 256;
    for (Len x = 0; x < roi.width * n; x += strip) {
        const Len count = std::min(strip, roi.width * n - x);
        A sums[strip + lanes<uint32_t>] = {};
        for (Len k = 0; k < maskSize; ++k) addColumns(sums, src.row(k - anchor) + x, count);
        for (Len y = 0;; ++y) {
            putChunk(output, dst.row(y) + x, sums, int(count));
            if (y + 1 == roi.height) break;
            moveColumns(sums, sums, src.row(y + maskSize - anchor) + x, src.row(y - anchor) + x, count);
        }
    }
}

template <Layout layout, class T>
StatusCode ownpi_SumWindowColumn(Image<const T> src, Image<float> dst, Roi roi, int maskSize, int anchor) {
    if (auto bad = lineContract(src.data, dst.data, maskSize, anchor)) return bad;
    if (nothingToDo(roi)) return STATUS_OK;
    toNearest([&] {
        (sumsFit<T>(maskSize, INT32_MAX) ? columnStrips<int32_t, T>
                                         : columnStrips<int64_t, T>)(src, dst, roi, layout.channels, maskSize, anchor);
    });
    return STATUS_OK;
}

}  // namespace
}  // namespace zmv

using namespace zmv;
#define ENTRY_OF ZMV_DEFINE
#include "filter/box.def"
SUM_WINDOW_SIZE_FAMILY
SUM_WINDOW_FAMILY
LINE_SUM_FAMILY(Row)
LINE_SUM_FAMILY(Column)
