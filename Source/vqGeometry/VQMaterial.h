// SPDX-License-Identifier: MIT
#pragma once

#include "vqGeometry/Export.h"

class CVQArchive;

/// A surface's material as OpenGL's lighting takes it. Colours are red, green, blue, alpha in 0.0 .. 1.0.
class VQGEOMETRY_API CVQMaterial
{
public:
    float m_fAmbient[4]{0, 0, 0, 1};
    float m_fDiffuse[4]{0, 0, 0, 1};
    float m_fSpecular[4]{0, 0, 0, 1};
    float m_fShininess = 0; ///< specular exponent, 0 .. 128
    float m_fAlpha = 1;

    /// Exact, number by number.
    bool operator==(const CVQMaterial& other) const = default;

    /// The fourteen numbers in their order, 32-bit floats with the low byte first: 56 bytes. Of a null archive nothing.
    void WriteFile(CVQArchive* archive) const;
    /// Takes the numbers as they come. An archive that ends too early throws its `CArchiveException*`, and the material
    /// stays as it was.
    void ReadFile(CVQArchive* archive);
};
