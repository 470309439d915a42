// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/VQDIB.h"

#include <memory>

/// A buffer of 32-bit texels with a mask byte, painted into as a whole or in polygonal regions.
///
/// A texel is the word `0xMMRRGGBB`: in memory blue, green, red, mask. Rows run from the top without padding. Colour
/// arguments are `0x00BBGGRR`, except those of the regions.
///
/// A texture is used by one thread at a time; making and releasing buffers is safe from any thread. Region painting and
/// archives need GDI+ to be running.
class VQDRAW_API CVQTexture
{
public:
    using eImageFormatType = CVQDIB::eImageFormatType;
    using enum CVQDIB::eImageFormatType;

    /// As `Resize`.
    CVQTexture(int nWidth, int nHeight);
    /// Shares the buffer of the other one; see the assignment.
    CVQTexture(const CVQTexture& other);
    /// Copies size and settings and shares the texels: what is written through one texture is seen through the other,
    /// deliberately. The last of them that lets the buffer go frees it. What this texture held before is let go.
    CVQTexture& operator=(const CVQTexture& other);
    ~CVQTexture();

    /// @name Texels
    /// Indices and coordinates are not checked.
    /// @{
    LONG& operator[](ULONG i) { return m_pTexel[i]; }
    /// Texel y * width + x, computed in 32 bits that wrap round.
    LONG& operator()(LONG x, LONG y);

    LONG GetWidth() const { return m_lWidth; }
    LONG GetHeight() const { return m_lHeight; }
    /// Number of texels.
    LONG GetSize() const { return m_lSize; }
    /// Modulo 2^32 for buffers of 2 GiB and more.
    LONG GetSizeInByte() const { return static_cast<LONG>(static_cast<ULONG>(m_lSize) * sizeof(LONG)); }
    LONG* GetTexelBuffer() { return m_pTexel; }
    BYTE* GetByteTexelBuffer() { return reinterpret_cast<BYTE*>(m_pTexel); }
    /// @}

    /// Smooth edges for painted regions; off for a new texture.
    void EnableAntialias(bool on) { m_bAntialias = on; }
    bool IsEnableAntialias() const { return m_bAntialias; }

    /// Lets the texels go and makes new ones, all 0. Sizes below 4 become 4, deliberately. Antialiasing is off
    /// afterwards. @return false, and the texture is empty, when the number of texels or the bytes of a row exceed
    /// 2^31 - 1, or memory cannot be had.
    bool Resize(LONG nWidth, LONG nHeight);

    /// @name Painting
    /// An empty texture, null points and a count below 1 paint nothing.
    /// @{
    /// Sets every texel; the top byte of the colour is ignored.
    void Clear(LONG lColor, BYTE byMask);
    /// Sets every mask byte and leaves the colours.
    void ClearMask(BYTE byMask);
    /// Fills a polygon whose corners are texels' centres, by the even-odd rule; nothing is blended: a texel takes
    /// colour and mask. The colour is taken as it stands, `0x00RRGGBB`, unlike that of `Clear`, deliberately; its top
    /// byte is added to the mask by OR. Where that gives 0, the texel loses its colour as well and is 0 altogether.
    void ClearRgn(CPoint* pPoints, int nCount, LONG lColor, BYTE byMask);
    /// Draws the closed outline of a polygon, `nWidth` texels wide (1 when that is negative), with the colour as above.
    void ClearRgnPath(CPoint* pPoints, int nCount, int nWidth, LONG lColor, BYTE byMask);
    /// @}

    /// @name Archives
    /// As those of `CVQDIB`: a length of four bytes and a PNG file whose alpha is the mask.
    /// @{
    /// Takes size and texels of the picture, down to 1 x 1, exactly for every mask. Antialiasing is off afterwards.
    /// @return false, and the texture stays as it was, when there is no picture, it cannot be decoded, or memory cannot
    /// be had. An archive that ends too early throws its `CArchiveException*`.
    bool ReadFile(CVQArchive* archive);
    /// Of an empty texture a length of 0. @return as that of `CVQDIB`: false for a null archive only.
    bool WriteFile(CVQArchive* archive);

    static int GetEncoderClsid(const wchar_t* mimeType, CLSID* clsid);
    static bool ReadFileToBitmap(CVQArchive* archive, Gdiplus::Bitmap*& bitmap);
    static bool ReadFileToBitmap(std::FILE* file, Gdiplus::Bitmap*& bitmap);
    static bool WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, CVQArchive* archive);
    static bool WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, std::FILE* file, eImageFormatType format,
                                    bool writeLength);
    /// @}

protected:
    bool Create(int nWidth, int nHeight);
    /// Lets the texels go; the texture is empty.
    void Destroy();
    /// Gives every field its first value, without releasing anything: for constructors.
    void Initialize();

    /// Held while a buffer is made or let go, by all textures in the process.
    static CCriticalSection m_criticalSection;

    LONG m_lWidth;
    LONG m_lHeight;
    LONG m_lSize;
    LONG* m_pTexel; // what m_owner owns
    bool m_bAntialias;

private:
    friend struct VQTestAccess;

    bool Allocate(LONG width, LONG height);
    template <typename Paint>
    void PaintRegion(const CPoint* points, int count, LONG colour, BYTE mask, Paint paint);

    std::shared_ptr<LONG[]> m_owner;
};
