// A call of remap, checked: its driver makes it, and the module of each element type does it.
#pragma once

#include "kernels/readable.h"

namespace zmv {

// What coordinates are given in, and all is computed in.
template <class T>
using MapOf = std::conditional_t<sizeof(T) == 8, double, float>;

template <class T>
struct Remapping {
    Readable<T> source;
    Image<const MapOf<T>> xMap, yMap;
    Image<T> dst;
    Roi roi;
    int kind;  // of kernel
    bool smooth;
    template <Layout layout>
    void run() const;
};

}  // namespace zmv
