// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Locked pixels, file formats and encoders.

#include "Platform/Export.h"
#include "Platform/gdiplus/PixelFormats.h"

namespace Gdiplus {

/// Pixels handed out by `Bitmap::LockBits`.
struct BitmapData
{
    UINT Width;
    UINT Height;
    INT Stride;
    INT PixelFormat;
    VOID* Scan0;
    UINT_PTR Reserved;
};

enum EncoderParameterValueType : INT {
    EncoderParameterValueTypeByte = 1,
    EncoderParameterValueTypeASCII = 2,
    EncoderParameterValueTypeShort = 3,
    EncoderParameterValueTypeLong = 4,
    EncoderParameterValueTypeRational = 5,
    EncoderParameterValueTypeLongRange = 6,
    EncoderParameterValueTypeUndefined = 7,
    EncoderParameterValueTypeRationalRange = 8,
    EncoderParameterValueTypePointer = 9
};

class EncoderParameter
{
public:
    GUID Guid;
    ULONG NumberOfValues;
    ULONG Type;
    VOID* Value;
};

class EncoderParameters
{
public:
    UINT Count;
    EncoderParameter Parameter[1];
};

enum ImageCodecFlags : INT {
    ImageCodecFlagsEncoder = 0x00000001,
    ImageCodecFlagsDecoder = 0x00000002,
    ImageCodecFlagsSupportBitmap = 0x00000004,
    ImageCodecFlagsSupportVector = 0x00000008,
    ImageCodecFlagsSeekableEncode = 0x00000010,
    ImageCodecFlagsBlockingDecode = 0x00000020,
    ImageCodecFlagsBuiltin = 0x00010000,
    ImageCodecFlagsSystem = 0x00020000,
    ImageCodecFlagsUser = 0x00040000
};

class ImageCodecInfo
{
public:
    CLSID Clsid;
    GUID FormatID;
    const WCHAR* CodecName;
    const WCHAR* DllName;
    const WCHAR* FormatDescription;
    const WCHAR* FilenameExtension;
    const WCHAR* MimeType;
    DWORD Flags;
    DWORD Version;
    DWORD SigCount;
    DWORD SigSize;
    const BYTE* SigPattern;
    const BYTE* SigMask;
};

inline constexpr GUID ImageFormatUndefined{0xB96B3CA9, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID ImageFormatMemoryBMP{0xB96B3CAA, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID ImageFormatBMP{0xB96B3CAB, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID ImageFormatJPEG{0xB96B3CAE, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID ImageFormatPNG{0xB96B3CAF, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID ImageFormatGIF{0xB96B3CB0, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};
inline constexpr GUID ImageFormatTIFF{0xB96B3CB1, 0x0728, 0x11D3, {0x9D, 0x7B, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};

/// One LONG from 0 (smallest file) to 100 (best picture), for JPEG.
inline constexpr GUID EncoderQuality{0x1D5BE4B5, 0xFA4A, 0x452D, {0x9C, 0xDD, 0x5D, 0xB3, 0x51, 0x05, 0xE7, 0xEB}};

/// How many encoders there are, and the bytes that `GetImageEncoders` fills. `InvalidParameter` for a null pointer.
VQPLATFORM_API Status GetImageEncodersSize(UINT* numEncoders, UINT* size);

/// Describes the encoders for BMP, JPEG, GIF, TIFF and PNG, in that order. Both numbers must be those of
/// `GetImageEncodersSize`, else `GenericError`. The texts stay valid as long as the program runs.
VQPLATFORM_API Status GetImageEncoders(UINT numEncoders, UINT size, ImageCodecInfo* encoders);

} // namespace Gdiplus
