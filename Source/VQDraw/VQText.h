// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "VQDraw/Export.h"

class CVQDIB;

/// Kind of a label: in the low 16 bits what a value is formatted as, above them flags.
enum EVQTextType : int {
    VQ_TEXT_NUMBER,  ///< "12.50": two decimals, no unit
    VQ_TEXT_LENGTH,  ///< as `VQ_UNIT_LENGTH`, with its decimals and its name
    VQ_TEXT_ANGLE,   ///< as `VQ_UNIT_ANGLE`
    VQ_TEXT_PERCENT, ///< "12.50%": the value is taken as it is
    VQ_TEXT_AREA,    ///< as `VQ_UNIT_AREA`
    VQ_TEXT_VOLUME,  ///< as `VQ_UNIT_VOLUME`
    VQ_TEXT_FREE,    ///< free text; a value has no text, as with all kinds above
    VQ_TEXT_END,

    VQ_TEXT_ONCE = 0x10000 ///< a flag: the label is dropped after it has been drawn once
};

constexpr EVQTextType operator|(EVQTextType kind, EVQTextType flags)
{
    return static_cast<EVQTextType>(static_cast<int>(kind) | static_cast<int>(flags));
}

/// A label at a point of the scene.
struct SVQText
{
    float m_fX = 0; ///< anchor in model coordinates
    float m_fY = 0;
    float m_fZ = 0;
    CString m_strText;
    EVQTextType m_eType = VQ_TEXT_NUMBER;
};

/// Labels pinned to points of the scene, drawn into an image that lies over the view.
///
/// A list of the framework: `GetCount`, `operator[]`, `RemoveAt` and `RemoveAll` are its own, with its answer to an
/// index that does not exist. For the thread of the user interface.
class VQDRAW_API CVQText : public CArray<SVQText, const SVQText&>
{
public:
    CVQText();
    ~CVQText() override;

    /// Appends a label with a value as text, the same in every locale.
    void Add(EVQTextType eType, float fX, float fY, float fZ, double dValue);
    /// Appends a label with text formatted as `CString::Format` does it, whatever its kind. Of a null format it is
    /// empty.
    template <typename... Arguments>
    void Add(EVQTextType eType, float fX, float fY, float fZ, const wchar_t* pszFormat, const Arguments&... arguments)
    {
        SVQText label{fX, fY, fZ, CString(), eType};
        label.m_strText.Format(pszFormat, arguments...);
        CArray::Add(label);
    }

    /// Draws every label with the image's font, text colour and shadow, its top left corner where the anchor is seen,
    /// moved by the offset; then drops those with `VQ_TEXT_ONCE`, drawn or not.
    ///
    /// The place is that of `gluProject`, fractions cut off, y downwards from the viewport's top as
    /// (pViewport[3] - pViewport[1]) - y - 1. A point behind the eye is drawn mirrored, as `gluProject` places it, and
    /// one in the eye's plane at window 0, 0, both deliberately. A place that is no number or beyond 32 bits is not
    /// drawn.
    ///
    /// Null pointers: nothing happens, and no label is dropped. An image without pixels shows nothing.
    ///
    /// @param pModel model view matrix, 16 numbers column by column
    /// @param pProj projection matrix, 16 numbers
    /// @param pViewport x, y, width, height
    void Draw(CVQDIB* pDIB, LONG nOffsetX, LONG nOffsetY, double* pModel, double* pProj, int* pViewport);
};
