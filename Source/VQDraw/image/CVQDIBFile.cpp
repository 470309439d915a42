// SPDX-License-Identifier: MIT
// Image files through GDI+.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/GraphicsSettings.h"
#include "VQDraw/image/ImageEncoders.h"
#include "VQDraw/image/ImageSize.h"
#include "VQDraw/image/PixelFormulas.h"
#include "vqCommonBase/VQShellAPI.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr ULONG kBestQuality = 100;

Gdiplus::EncoderParameters parametersOf(ULONG& quality)
{
    Gdiplus::EncoderParameters parameters{};
    parameters.Count = 1;
    parameters.Parameter[0].Guid = Gdiplus::EncoderQuality;
    parameters.Parameter[0].NumberOfValues = 1;
    parameters.Parameter[0].Type = Gdiplus::EncoderParameterValueTypeLong;
    parameters.Parameter[0].Value = &quality;
    return parameters;
}

struct FileType
{
    std::wstring_view ending; // four characters: of TIFF files those without the dot
    CLSID encoder;
};

constexpr FileType kFileTypes[] = {{L".bmp", vq::kBmpEncoder},
                                   {L".jpg", vq::kJpegEncoder},
                                   {L".gif", vq::kGifEncoder},
                                   {L"tiff", vq::kTiffEncoder},
                                   {L".png", vq::kPngEncoder}};

/// The encoder that the path asks for. One that asks for none becomes that of a PNG file.
CLSID encoderFor(CString& path)
{
    const CString ending = path.Right(4).MakeLower();
    for (const FileType& type : kFileTypes)
        if (ending == type.ending.data())
            return type.encoder;
    path += L".png";
    return vq::kPngEncoder;
}

/// The separator that every form of a Windows path takes.
void useBackslashes(CString& path)
{
    path.Replace(L'/', L'\\');
}

} // namespace

CVQDIB::CVQDIB(CString imageFile, CString maskFile)
{
    Initialize();
    Create(4, 4);
    LoadBMP(imageFile);
    LoadMaskBMP(maskFile);
}

CVQDIB::CVQDIB(CString file)
{
    Initialize();
    Load(file);
}

CVQDIB::CVQDIB(CString file, COLORREF colour, LONG alpha)
{
    Initialize();
    Load(file, colour, alpha);
}

/// Becomes the picture without copying it, or empty when memory runs out. False, and nothing has changed, where the
/// system does not hand the pixels over. What is left is what drawing would leave: nothing of a transparent pixel.
bool CVQDIB::Take(Gdiplus::Bitmap& picture)
{
    const auto width = static_cast<LONG>(picture.GetWidth());
    const auto height = static_cast<LONG>(picture.GetHeight());
    if (!vq::isRepresentable(width, height))
        return false;
    vq::platform::DecodedPixels decoded = vq::platform::takePixels(picture);
    if (!decoded.words)
        return false;
    Destroy();
    if (Adopt(decoded.words.release(), width, height) && decoded.mayBeTransparent)
        std::ranges::transform(Pixels(), m_pImageBuffer, vq::zeroIfTransparent);
    return true;
}

/// A cleared image of the picture's size, or of 1 x 1 where there is no picture, or one too large.
void CVQDIB::CreateOrBlank(Gdiplus::Bitmap& picture)
{
    if (!Create(static_cast<INT>(picture.GetWidth()), static_cast<INT>(picture.GetHeight())))
        Create(1, 1);
}

bool CVQDIB::Load(CString path)
{
    if (!CVQShellAPI::IsPathExist(path))
        return false;
    const CSingleLock lock(&_critSect, TRUE);
    useBackslashes(path);
    Gdiplus::Bitmap picture(path);
    if (Take(picture) && m_pGraphics)
        return true;
    CreateOrBlank(picture); // what was taken is gone: 1 x 1
    if (!m_pGraphics)
        return true;
    const vq::SourceCopy mode(*m_pGraphics);
    const vq::HighQuality quality(*m_pGraphics);
    DrawWhole(picture);
    return true;
}

int CVQDIB::Load(CString path, COLORREF colour, LONG alpha)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (!CVQShellAPI::IsPathExist(path))
        return 0;
    useBackslashes(path);
    Gdiplus::Bitmap picture(path);
    CreateOrBlank(picture);
    if (!m_pGraphics)
        return 1;
    Clear(colour, static_cast<BYTE>(alpha));
    m_pGraphics->SetCompositingMode(Gdiplus::CompositingModeSourceOver);
    const vq::HighQuality quality(*m_pGraphics);
    DrawWhole(picture);
    return 1;
}

bool CVQDIB::Save(CString path)
{
    if (path.IsEmpty())
        return false;
    useBackslashes(path);
    const CLSID encoder = encoderFor(path);
    if (!m_pBitmap)
        return true;
    ULONG quality = kBestQuality;
    const Gdiplus::EncoderParameters parameters = parametersOf(quality);
    vq::platform::ReplacementFile file(path);
    const bool isWritten =
        file.isReady() &&
        m_pBitmap->Save(file.path(), &encoder, encoder == vq::kJpegEncoder ? &parameters : nullptr) == Gdiplus::Ok;
    if (isWritten)
        (void)file.commit(); // what came of it is not told
    return true;
}

int CVQDIB::GetEncoderClsid(const wchar_t* mimeType, CLSID* clsid)
{
    UINT count = 0;
    UINT bytes = 0;
    if (!mimeType || !clsid || Gdiplus::GetImageEncodersSize(&count, &bytes) != Gdiplus::Ok)
        return -1;
    const vq::platform::PixelMemory<BYTE> memory(static_cast<BYTE*>(vq::platform::allocateRaw(bytes)));
    auto* const encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(memory.get());
    if (!encoders || Gdiplus::GetImageEncoders(count, bytes, encoders) != Gdiplus::Ok)
        return -1;
    for (UINT i = 0; i < count; ++i)
        if (std::wstring_view(encoders[i].MimeType) == mimeType) {
            *clsid = encoders[i].Clsid;
            return static_cast<int>(i);
        }
    return -1;
}
