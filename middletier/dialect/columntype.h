#pragma once

// Kinds of column in the schema declaration; each dialect names its own type for each.
enum class ColumnType {
    Integer,
    SmallInt, // flags and small codes (0/1, decimals, directions)
    BigInt,
    Real, // money and quantities are doubles
    Text, // with a size
    LongText,
    Date,     // "yyyy-mm-dd" text, '' when unknown: the controls write dates as text literals
    DateTime, // a moment written by the middle tier itself
};
