// Reading fixed-length records: 16-bit integers, 32-bit and 64-bit IEEE
// floats little-endian, and blank-padded single-byte texts, field by field
// in file order, independent of the in-memory layout.
#pragma once
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace vedrano {

// A fixed-length Windows-1252 text field of N characters.
template <std::size_t N>
struct CadenaFija {
    std::array<char, N> c{};
    CadenaFija() { c.fill(' '); }
    std::string texto() const { return std::string(c.data(), N); }
    bool operator==(const CadenaFija&) const = default;
};

// Walks one record's bytes; reading past the end yields zero bytes for the
// numbers and blanks for the texts, as a short record reads blank.
class LectorCampos {
public:
    explicit LectorCampos(std::string_view bytes) : bytes_(bytes) {}

    int16_t Entero() {
        uint8_t b[2];
        Toma(b, 2);
        return static_cast<int16_t>(static_cast<uint16_t>(b[0] | (b[1] << 8)));
    }
    float Simple() {
        uint8_t b[4];
        Toma(b, 4);
        uint32_t u = static_cast<uint32_t>(b[0]) | (static_cast<uint32_t>(b[1]) << 8) |
                     (static_cast<uint32_t>(b[2]) << 16) | (static_cast<uint32_t>(b[3]) << 24);
        float f;
        std::memcpy(&f, &u, 4);
        return f;
    }
    double Doble() {
        uint8_t b[8];
        Toma(b, 8);
        uint64_t u = 0;
        for (int i = 7; i >= 0; --i) u = (u << 8) | b[i];
        double d;
        std::memcpy(&d, &u, 8);
        return d;
    }
    template <std::size_t N>
    CadenaFija<N> Texto() {
        CadenaFija<N> t;
        for (std::size_t i = 0; i < N && pos_ + i < bytes_.size(); ++i) t.c[i] = bytes_[pos_ + i];
        pos_ += N;
        return t;
    }
    void Salta(std::size_t n) { pos_ += n; }

private:
    void Toma(uint8_t* destino, std::size_t n) {
        for (std::size_t i = 0; i < n; ++i)
            destino[i] = pos_ + i < bytes_.size() ? static_cast<uint8_t>(bytes_[pos_ + i]) : 0;
        pos_ += n;
    }
    std::string_view bytes_;
    std::size_t pos_ = 0;
};

}  // namespace vedrano
