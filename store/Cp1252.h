#pragma once
// Text on disk is one byte a character in Windows-1252; text in memory is UTF-8. Every one of
// the 256 bytes has a character, so whatever a file holds reads back and writes out unchanged.
#include <cstddef>
#include <string>
#include <string_view>

// The character of a byte. The five bytes that Windows-1252 leaves unassigned (0x81, 0x8D,
// 0x8F, 0x90, 0x9D) stand for the C1 control characters of the same code, so they round-trip.
char32_t CarattereCp1252(unsigned char byte);

// The byte of a character, or -1 when Windows-1252 cannot hold it.
int ByteCp1252(char32_t carattere);

// `quanti` bytes of Windows-1252 as UTF-8: always exactly `quanti` characters.
std::string Utf8DaCp1252(const unsigned char* byte, std::size_t quanti);

// Writes `testo` into exactly `quanti` bytes: cut when longer, blank-padded when shorter. A
// character that Windows-1252 cannot hold, or a byte that isn't valid UTF-8, becomes "?".
void Cp1252DaUtf8(std::string_view testo, unsigned char* byte, std::size_t quanti);
