// zmviSumWindow: the sum of a window, with borders; zmviSumWindowRow and Column: sums along one axis, from memory.
#include "filter/boxborder.h"

namespace zmv {
namespace {

template <class T, class D>
class WindowSum {
  public:
    explicit WindowSum(Window) {}
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
    const bool wide = !sumsFit<T>(maskSize, INT32_MAX);
    const WindowSum<T, float> output{Window({maskSize, 1})};
    for (Len y = 0; y < roi.height; ++y) {
        const RowReader<T> reader{src.row(y) - Len(anchor) * n, (roi.width + maskSize - 1) * n};
        if (wide)
            putRow<n, true>(output, dst.row(y), reader, roi.width, maskSize, nullptr);
        else
            putRow<n, false>(output, dst.row(y), reader, roi.width, maskSize, nullptr);
    }
    return STATUS_OK;
}

// Strips of columns whose sums, of type A, stay on the stack.
template <class A, class T, class Put>
void columnStrips(Image<const T> src, Roi roi, int n, int maskSize, int anchor, Put put) {
    constexpr Len strip = 256;
    for (Len x = 0; x < roi.width * n; x += strip) {
        const Len count = std::min(strip, roi.width * n - x);
        A sums[strip + lanes<A>] = {};
        for (Len k = 0; k < maskSize; ++k) addColumns(sums, src.row(k - anchor) + x, count);
        for (Len y = 0;; ++y) {
            put(x, y, sums, int(count));
            if (y + 1 == roi.height) break;
            moveColumns(sums, sums, src.row(y + maskSize - anchor) + x, src.row(y - anchor) + x, count);
        }
    }
}

template <Layout layout, class T>
StatusCode ownpi_SumWindowColumn(Image<const T> src, Image<float> dst, Roi roi, int maskSize, int anchor) {
    if (auto bad = lineContract(src.data, dst.data, maskSize, anchor)) return bad;
    if (nothingToDo(roi)) return STATUS_OK;
    const WindowSum<T, float> output{Window({1, maskSize})};
    if (sumsFit<T>(maskSize, INT32_MAX)) {
        columnStrips<uint32_t>(
            src, roi, layout.channels, maskSize, anchor,
            [&](Len x, Len y, const uint32_t* sums, int count) { putChunk(output, dst.row(y) + x, sums, count); });
    } else {
        columnStrips<int64_t>(src, roi, layout.channels, maskSize, anchor,
                              [&](Len x, Len y, const int64_t* sums, int count) {
                                  for (int i = 0; i < count; ++i) put(dst.row(y) + x + i, output.one(sums[i]));
                              });
    }
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
