// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Settings and their values. Every enumeration is kept as a plain 32-bit number: a caller may cast any number to it,
/// and the call that takes it answers `InvalidParameter`.

#include "Platform/gdiplus/Types.h"

namespace Gdiplus {

enum QualityMode : INT { QualityModeInvalid = -1, QualityModeDefault = 0, QualityModeLow = 1, QualityModeHigh = 2 };

enum BrushType : INT {
    BrushTypeSolidColor = 0,
    BrushTypeHatchFill = 1,
    BrushTypeTextureFill = 2,
    BrushTypePathGradient = 3,
    BrushTypeLinearGradient = 4
};

enum CompositingMode : INT { CompositingModeSourceOver = 0, CompositingModeSourceCopy = 1 };

enum CompositingQuality : INT {
    CompositingQualityInvalid = QualityModeInvalid,
    CompositingQualityDefault = QualityModeDefault,
    CompositingQualityHighSpeed = QualityModeLow,
    CompositingQualityHighQuality = QualityModeHigh,
    CompositingQualityGammaCorrected = 3,
    CompositingQualityAssumeLinear = 4
};

enum FlushIntention : INT { FlushIntentionFlush = 0, FlushIntentionSync = 1 };

/// Cells of 8 x 8 pixels; LargeGrid is another name of Cross.
enum HatchStyle : INT {
    HatchStyleHorizontal = 0,
    HatchStyleVertical = 1,
    HatchStyleForwardDiagonal = 2,
    HatchStyleBackwardDiagonal = 3,
    HatchStyleCross = 4,
    HatchStyleLargeGrid = 4,
    HatchStyleDiagonalCross = 5,
    HatchStyle05Percent = 6,
    HatchStyle10Percent = 7,
    HatchStyle20Percent = 8,
    HatchStyle25Percent = 9,
    HatchStyle30Percent = 10,
    HatchStyle40Percent = 11,
    HatchStyle50Percent = 12,
    HatchStyle60Percent = 13,
    HatchStyle70Percent = 14,
    HatchStyle75Percent = 15,
    HatchStyle80Percent = 16,
    HatchStyle90Percent = 17,
    HatchStyleLightDownwardDiagonal = 18,
    HatchStyleLightUpwardDiagonal = 19,
    HatchStyleDarkDownwardDiagonal = 20,
    HatchStyleDarkUpwardDiagonal = 21,
    HatchStyleWideDownwardDiagonal = 22,
    HatchStyleWideUpwardDiagonal = 23,
    HatchStyleLightVertical = 24,
    HatchStyleLightHorizontal = 25,
    HatchStyleNarrowVertical = 26,
    HatchStyleNarrowHorizontal = 27,
    HatchStyleDarkVertical = 28,
    HatchStyleDarkHorizontal = 29,
    HatchStyleDashedDownwardDiagonal = 30,
    HatchStyleDashedUpwardDiagonal = 31,
    HatchStyleDashedHorizontal = 32,
    HatchStyleDashedVertical = 33,
    HatchStyleSmallConfetti = 34,
    HatchStyleLargeConfetti = 35,
    HatchStyleZigZag = 36,
    HatchStyleWave = 37,
    HatchStyleDiagonalBrick = 38,
    HatchStyleHorizontalBrick = 39,
    HatchStyleWeave = 40,
    HatchStylePlaid = 41,
    HatchStyleDivot = 42,
    HatchStyleDottedGrid = 43,
    HatchStyleDottedDiamond = 44,
    HatchStyleShingle = 45,
    HatchStyleTrellis = 46,
    HatchStyleSphere = 47,
    HatchStyleSmallGrid = 48,
    HatchStyleSmallCheckerBoard = 49,
    HatchStyleLargeCheckerBoard = 50,
    HatchStyleOutlinedDiamond = 51,
    HatchStyleSolidDiamond = 52,
    HatchStyleTotal = 53,
    HatchStyleMin = HatchStyleHorizontal,
    HatchStyleMax = HatchStyleTotal - 1
};

/// The values can be combined.
enum FontStyle : INT {
    FontStyleRegular = 0,
    FontStyleBold = 1,
    FontStyleItalic = 2,
    FontStyleBoldItalic = 3,
    FontStyleUnderline = 4,
    FontStyleStrikeout = 8
};

enum HotkeyPrefix : INT { HotkeyPrefixNone = 0, HotkeyPrefixShow = 1, HotkeyPrefixHide = 2 };

enum ImageType : INT { ImageTypeUnknown = 0, ImageTypeBitmap = 1, ImageTypeMetafile = 2 };

enum InterpolationMode : INT {
    InterpolationModeInvalid = QualityModeInvalid,
    InterpolationModeDefault = QualityModeDefault,
    InterpolationModeLowQuality = QualityModeLow,
    InterpolationModeHighQuality = QualityModeHigh,
    InterpolationModeBilinear = 3,
    InterpolationModeBicubic = 4,
    InterpolationModeNearestNeighbor = 5,
    InterpolationModeHighQualityBilinear = 6,
    InterpolationModeHighQualityBicubic = 7
};

/// Which way the colours of a rectangle change; the diagonals run from a corner to the opposite one.
enum LinearGradientMode : INT {
    LinearGradientModeHorizontal = 0,
    LinearGradientModeVertical = 1,
    LinearGradientModeForwardDiagonal = 2,
    LinearGradientModeBackwardDiagonal = 3
};

enum PixelOffsetMode : INT {
    PixelOffsetModeInvalid = QualityModeInvalid,
    PixelOffsetModeDefault = QualityModeDefault,
    PixelOffsetModeHighSpeed = QualityModeLow,
    PixelOffsetModeHighQuality = QualityModeHigh,
    PixelOffsetModeNone = 3,
    PixelOffsetModeHalf = 4
};

/// Clockwise rotation first, then the flip; so every result has two names.
enum RotateFlipType : INT {
    RotateNoneFlipNone = 0,
    Rotate90FlipNone = 1,
    Rotate180FlipNone = 2,
    Rotate270FlipNone = 3,
    RotateNoneFlipX = 4,
    Rotate90FlipX = 5,
    Rotate180FlipX = 6,
    Rotate270FlipX = 7,
    RotateNoneFlipY = Rotate180FlipX,
    Rotate90FlipY = Rotate270FlipX,
    Rotate180FlipY = RotateNoneFlipX,
    Rotate270FlipY = Rotate90FlipX,
    RotateNoneFlipXY = Rotate180FlipNone,
    Rotate90FlipXY = Rotate270FlipNone,
    Rotate180FlipXY = RotateNoneFlipNone,
    Rotate270FlipXY = Rotate90FlipNone
};

enum SmoothingMode : INT {
    SmoothingModeInvalid = QualityModeInvalid,
    SmoothingModeDefault = QualityModeDefault,
    SmoothingModeHighSpeed = QualityModeLow,
    SmoothingModeHighQuality = QualityModeHigh,
    SmoothingModeNone = 3,
    SmoothingModeAntiAlias8x4 = 4,
    SmoothingModeAntiAlias = SmoothingModeAntiAlias8x4,
    SmoothingModeAntiAlias8x8 = 5
};

/// Left or top, centre, right or bottom; in text that runs to the left near is right.
enum StringAlignment : INT { StringAlignmentNear = 0, StringAlignmentCenter = 1, StringAlignmentFar = 2 };

/// The values can be combined.
enum StringFormatFlags : INT {
    StringFormatFlagsDirectionRightToLeft = 0x00000001,
    StringFormatFlagsDirectionVertical = 0x00000002,
    StringFormatFlagsNoFitBlackBox = 0x00000004,
    StringFormatFlagsDisplayFormatControl = 0x00000020,
    StringFormatFlagsNoFontFallback = 0x00000400,
    StringFormatFlagsMeasureTrailingSpaces = 0x00000800,
    StringFormatFlagsNoWrap = 0x00001000,
    StringFormatFlagsLineLimit = 0x00002000,
    StringFormatFlagsNoClip = 0x00004000
};

enum StringTrimming : INT {
    StringTrimmingNone = 0,
    StringTrimmingCharacter = 1,
    StringTrimmingWord = 2,
    StringTrimmingEllipsisCharacter = 3,
    StringTrimmingEllipsisWord = 4,
    StringTrimmingEllipsisPath = 5
};

enum TextRenderingHint : INT {
    TextRenderingHintSystemDefault = 0,
    TextRenderingHintSingleBitPerPixelGridFit = 1,
    TextRenderingHintSingleBitPerPixel = 2,
    TextRenderingHintAntiAliasGridFit = 3,
    TextRenderingHintAntiAlias = 4,
    TextRenderingHintClearTypeGridFit = 5
};

enum Unit : INT {
    UnitWorld = 0,
    UnitDisplay = 1,
    UnitPixel = 2,
    UnitPoint = 3,
    UnitInch = 4,
    UnitDocument = 5,
    UnitMillimeter = 6
};

enum DashCap : INT { DashCapFlat = 0, DashCapRound = 2, DashCapTriangle = 3 };

enum DashStyle : INT {
    DashStyleSolid = 0,
    DashStyleDash = 1,
    DashStyleDot = 2,
    DashStyleDashDot = 3,
    DashStyleDashDotDot = 4,
    DashStyleCustom = 5
};

enum FillMode : INT { FillModeAlternate = 0, FillModeWinding = 1 };

enum LineCap : INT {
    LineCapFlat = 0,
    LineCapSquare = 1,
    LineCapRound = 2,
    LineCapTriangle = 3,
    LineCapNoAnchor = 0x10,
    LineCapSquareAnchor = 0x11,
    LineCapRoundAnchor = 0x12,
    LineCapDiamondAnchor = 0x13,
    LineCapArrowAnchor = 0x14,
    LineCapCustom = 0xFF,
    LineCapAnchorMask = 0xF0
};

/// Miter is cut off at the limit, MiterClipped becomes a bevel there.
enum LineJoin : INT { LineJoinMiter = 0, LineJoinBevel = 1, LineJoinRound = 2, LineJoinMiterClipped = 3 };

enum PathPointType : INT {
    PathPointTypeStart = 0x00,
    PathPointTypeLine = 0x01,
    PathPointTypeBezier = 0x03,
    PathPointTypeBezier3 = PathPointTypeBezier,
    PathPointTypePathTypeMask = 0x07,
    PathPointTypePathDashMode = 0x10,
    PathPointTypePathMarker = 0x20,
    PathPointTypeCloseSubpath = 0x80
};

enum PenAlignment : INT { PenAlignmentCenter = 0, PenAlignmentInset = 1 };

enum PenType : INT {
    PenTypeUnknown = -1,
    PenTypeSolidColor = BrushTypeSolidColor,
    PenTypeHatchFill = BrushTypeHatchFill,
    PenTypeTextureFill = BrushTypeTextureFill,
    PenTypePathGradient = BrushTypePathGradient,
    PenTypeLinearGradient = BrushTypeLinearGradient
};

/// How what ends is continued: repeated as it is, every other time mirrored, or not at all.
enum WrapMode : INT {
    WrapModeTile = 0,
    WrapModeTileFlipX = 1,
    WrapModeTileFlipY = 2,
    WrapModeTileFlipXY = 3,
    WrapModeClamp = 4
};

/// What `LockBits` is asked for; the values can be combined.
enum ImageLockMode : UINT { ImageLockModeRead = 1, ImageLockModeWrite = 2, ImageLockModeUserInputBuf = 4 };

} // namespace Gdiplus
