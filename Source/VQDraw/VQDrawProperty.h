// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/Export.h"
#include "VQDraw/VQDrawPropertyEnumerations.h"
#include "VQDraw/VQFont.h"
#include "vqGeometry/VQColor.h"
#include "vqGeometry/VQGeometryTypes.h"
#include "vqGeometry/VQMaterial.h"

#include <cstdint>
#include <cstdio>

class CVQArchive;

/// The process-wide store of display preferences; there are no objects of it.
///
/// - Start-up gives every preference its default; what a user has chosen is read over that.
/// - For the user-interface thread only: nothing is locked.
/// - An index outside its table, negative or past the last row, is harmless: a setter does nothing, a getter answers
///   null or a default-constructed value, as its type is. A null pointer changes nothing.
/// - The tables are open to the application; for some of them there are no other ways.
class VQDRAW_API CVQDrawProperty
{
public:
    using eDrawPropertyColor = ::eDrawPropertyColor;
    using eDrawPropertySize = ::eDrawPropertySize;
    using eControlDrawPropertyAlpha = ::eControlDrawPropertyAlpha;
    using eHistogramColor = ::eHistogramColor;
    using eControlDrawPropertyColor = ::eControlDrawPropertyColor;
    using eDrawPropertyMaterial = ::eDrawPropertyMaterial;
    using eDrawPropertyReportColor = ::eDrawPropertyReportColor;
    using eDrawPropertyFont = ::eDrawPropertyFont;
    using enum ::eDrawPropertyColor;
    using enum ::eDrawPropertySize;
    using enum ::eControlDrawPropertyAlpha;
    using enum ::eHistogramColor;
    using enum ::eControlDrawPropertyColor;
    using enum ::eDrawPropertyMaterial;
    using enum ::eDrawPropertyReportColor;
    using enum ::eDrawPropertyFont;

    CVQDrawProperty() = delete;
    /// Nothing to assign: all is static.
    CVQDrawProperty& operator=(const CVQDrawProperty&) = default;
    CVQDrawProperty& operator=(CVQDrawProperty&&) = default;

    /// @name Defaults
    /// @{
    /// Gives every preference its default, fonts for the screen's resolution. What has no default stays as it is:
    /// `DPC_COLORMATDIFFUSE`, `DPC_DEFINED_SELECTITEM`, all but the first number of `DPC_TEXTUREMAT_SHININESS`,
    /// `DPC_COLORBAR_TEXT`, `DPC_MEASUREMENT_TEXT`, the alphas of the colours in `DPM_BODY` and `DPM_SURF_BODY`, and
    /// the palette.
    static void Initialize();
    /// For a document that starts: sets the palette's cursor and `DPS_3D_SKETCH_CURVE_BENDING_WINDOW` to 0.
    static void InitializeByDoc();
    /// The four lights, `DPC_LIGHT0AMBIENT` to `DPC_LIGHT3POS`. All of them shine from a direction.
    static void InitLightProps();
    /// Height, weight, slant, face, character set and pitch of the system's font for controls, in black, without a
    /// shadow; `DPF_MEASUREMENT_FONT` takes the colour of `DPC_CURSOR_TEXT`. The nominal size is that height. What else
    /// the record holds stays.
    static void InitFontInfo(eDrawPropertyFont index);
    /// As `InitFontInfo(DPF_COLORBAR_FONT)`.
    static void InitColorbarFont();
    /// Derives `DPC_UI_EDIT_BG`, 16 darker, `DPC_UI_BUTTON_BG` and `DPC_UI_SCROLL_TH_BG`, 32 lighter, from
    /// `DPC_UI_CTRL_BG`, with the alpha of that. To be called by whoever changes it.
    static void SetUIColorRelatives();
    /// @}

    /// @name Scene colours
    /// Red, green, blue and alpha in 0.0 .. 1.0, which nobody checks.
    /// @{
    /// The row itself, four floats to read and to write.
    static float* GetColor(eDrawPropertyColor index);
    /// By `CVQColor::Set4fv`.
    static CVQColor GetDPCVQColor(eDrawPropertyColor index);
    /// Three floats; the alpha stays.
    static void SetColorRGB(eDrawPropertyColor index, float* rgb);
    /// Four floats in the order red, green, blue, alpha, in spite of the name.
    static void SetColorARGB(eDrawPropertyColor index, float* rgba);
    /// Makes it OpenGL's current colour, with its own alpha where `alpha` is -1, otherwise with that one.
    static void GLApplyColor(eDrawPropertyColor index, float alpha);
    /// @}

    static float GetSize(eDrawPropertySize index);
    static void SetSize(eDrawPropertySize index, float size);
    static CVQColor GetVQColor(eControlDrawPropertyColor index);
    /// Does not touch the colours that are derived from `DPC_UI_CTRL_BG`; see `SetUIColorRelatives`.
    static void SetVQColor(eControlDrawPropertyColor index, CVQColor colour);
    static CVQColor GetReportColor(eDrawPropertyReportColor index);
    static void SetReportColor(eDrawPropertyReportColor index, CVQColor colour);
    static CVQFont GetFont(eDrawPropertyFont index);
    static void SetFont(eDrawPropertyFont index, CVQFont font);
    /// Outside the table `material` stays as it is.
    static void GetDPMaterial(eDrawPropertyMaterial index, CVQMaterial& material);
    static void SetDPMaterial(eDrawPropertyMaterial index, CVQMaterial& material);

    /// @name Colours of entities
    /// Reference geometry and probe points have a scene colour each; other types of the geometry database have none.
    /// @{
    /// `DPC_END` for a type without a colour.
    static eDrawPropertyColor GetDrawPropOfEntity(eGDBEntityType type);
    /// Null for a type without a colour.
    static float* Get4fvOfEntity(eGDBEntityType type);
    /// Opaque black for a type without a colour.
    static CVQColor GetColorOfEntity(eGDBEntityType type);
    static void Set4fvOfEntity(eGDBEntityType type, const float* rgba);
    /// @}

    /// @name Colours of results
    /// `DPC_IGNORE_RESULT` for an ignored result; otherwise the row that stands as far behind `DPC_FAIL` as the number
    /// says, also where that leaves the four results.
    /// @{
    static float* GetResultColor(eVQCalcTolResult result);
    static CVQColor GetResultVQColor(eVQCalcTolResult result);
    /// @}

    /// @name Names
    /// The index whose name is `name`, letter by letter; -1 for anything else, the names of the `..._END` members
    /// included.
    /// @{
    static int GetDPCEnumStringToEnumNo(CString name);
    static int GetDPSEnumStringToEnumNo(CString name);
    static int GetUICtrlAlphaEnumStringToEnumNo(CString name);
    static int GetUICtrlDPCEnumStringToEnumNo(CString name);
    static int GetDPMEnumStringToEnumNo(CString name);
    static int GetReportDPCEnumStringToEnumNo(CString name);
    static int GetDPFEnumStringToEnumNo(CString name);
    /// The way back, for lists that a user chooses from: the name of a row, empty outside the table.
    static CString GetDPCEnumNoToEnumString(int index);
    static CString GetDPSEnumNoToEnumString(int index);
    static CString GetUICtrlAlphaEnumNoToEnumString(int index);
    static CString GetUICtrlDPCEnumNoToEnumString(int index);
    static CString GetDPMEnumNoToEnumString(int index);
    static CString GetReportDPCEnumNoToEnumString(int index);
    static CString GetDPFEnumNoToEnumString(int index);
    /// @}

    /// @name In the preference file
    /// All tables but histogram colours, `DPC_TEXTUREMAT_SHININESS`, the alpha of floating dialogs and the palette, in
    /// a profile file that `CVQRegistry` reads and writes: sections of keys and values.
    ///
    /// - Scene colours are in `<DPC>`, by name, as a number with red in the low byte and alpha in the high one, each a
    ///   channel times 255, truncated and cut to 8 bits; a light's position is a section of its own, `<X>` to `<W>`.
    /// - `<DPS>` has sizes; `<UIDPC>` the colours of controls and, deliberately, those of reports, as a COLORREF, which
    ///   read back opaque; `<UIAlpha>` alphas, of which the low 8 bits count. A section for each material has
    ///   `<Shiness>`, `<Alpha>`, `<Ambient>`, `<Diffuse>` and `<Specular>`; one for each font, what
    ///   `CVQFont::WriteToFile` writes.
    /// - A value that the file does not have, or that is no number, stays as it is, also where files of the legacy
    ///   layout would have it: those are read as well. All fonts get their heights set.
    /// - Memory that cannot be had throws `CMemoryException*` or `std::bad_alloc`: what was read by then counts, every
    ///   value whole, and nothing is written.
    /// @{
    /// "Configure\vqPreference.kpf" below `CVQProcess::GetBootPath()` for all users of the machine, or below
    /// `CVQProcess::GetMyDocumentPath(false)` for this one.
    static CString GetDisplayFileFullPath(int machineWide);

    /// Reads the user's file, or else that of the machine; if there is no file of the machine, it is written first.
    /// @return the path that was read; empty when there is no file, and nothing has changed.
    static CString ReadPreferenceFromFile();
    /// Then the selection shapes take their colour.
    /// @return 1; 0 when there is no such file, and nothing has changed.
    static int ReadPreferenceFromFile(CString path);

    /// Makes the file writable, if it is read-only, and writes it.
    /// @return its path; empty when it could not be written.
    static CString WritePreferenceToFile(int machineWide);
    /// Writes all values into a file, beside what else it holds, and makes its folder if that is called "Configure".
    /// The file is replaced in one step, and the one before it kept with ".bak" behind its name.
    /// @return 1; 0 when it could not be written, and the old file stays. Within a `CVQRegistry::FileScope` of the same
    /// file 1: that one will write it.
    static int WritePreferenceToFile(CString path);
    /// @}

    /// @name In files of the legacy layout
    /// @{
    /// Reads a text file of tagged blocks, as older versions wrote it: an opening line, a line with the name of the
    /// entry, property lines, a closing line. Current preference files hold no such lines and change nothing.
    ///
    /// - `<DPC>`: `<Red>`, `<Green>`, `<Blue>` in 0 .. 255, alpha stays; of a light's position `<X>`, `<Y>`, `<Z>`,
    ///   `<W>`. `<UIDPC>` and `<ReportDPC>`: the three colours; alpha becomes 255. What is not mentioned is 0.
    /// - `<DPS>`: `<Size>`; deliberately -1 when not mentioned. `<UIAlpha>`: `<Alpha>` in 0 .. 255, of which the low
    ///   8 bits count; 0 when not mentioned.
    /// - `<Material>`: `<Shiness>`, `<Alpha>` in 0.0 .. 1.0, and `<Ambient>`, `<Diffuse>`, `<Specular>`, each to its
    ///   closing line, with `<Red>`, `<Green>`, `<Blue>` in 0 .. 255. The alpha goes into all three colours;
    ///   deliberately it is -1 when not mentioned. What else is not mentioned stays.
    /// - `<Font>`: see `CVQFont::ReadFromFileLegacy`.
    /// - `<FloatDialog>`: no block: the next line is the alpha, of which the low 8 bits count; -1 is none.
    ///
    /// Opening and closing lines may be in either case and have tabs at their ends, nothing else. A block whose name is
    /// unknown is passed over; one that the file does not finish has no effect, but for that of a font. How text is
    /// encoded, how long a line may be and what counts as a value is told at `CVQFont::ReadFromFileLegacy`. At the end
    /// the selection shapes take their colour.
    ///
    /// @return 1; 0 when there is no such file or it cannot be opened, and nothing has changed.
    static int ReadPreferenceFromFileLegacy(CString path);
    /// @}

    /// @name The palette
    /// Materials of the user's own, in the order in which they are shown. An index outside the palette makes a member
    /// answer false, and nothing changes; memory that cannot be had throws `CMemoryException*`, with the same effect.
    /// @{
    /// Appends a copy.
    static void AddMaterial(CVQMaterial& material);
    /// The index of the first one that equals it, number by number; -1 when there is none.
    static int FindMaterial(CVQMaterial& material);
    /// Inserts a copy before the one at `index`, which must exist: nothing can be appended so.
    static bool InsertMaterial(int index, CVQMaterial& material);
    /// Replaces.
    static bool ModifyMaterial(int index, CVQMaterial& material);
    static bool RemoveMaterial(int index);
    /// Copies it to `material`, which otherwise stays as it is.
    static bool GetMaterial(int index, CVQMaterial& material);
    /// Copies the one at the cursor and moves the cursor on. Behind the last comes the first again, without end, so
    /// that callers count to `GetMaterialSize`. False when the palette is empty.
    static bool GetNextMaterial(CVQMaterial& material);
    /// The cursor of `GetNextMaterial`, in spite of the name: the index that comes next.
    static int GetMaterialCount();
    /// Sets the cursor; a negative one becomes 0.
    static void SetMaterialCount(int cursor);
    /// How many materials there are.
    static std::int64_t GetMaterialSize();

    /// Loads the palette, as `LoadMaterialConfigData` does, from "Configure\MaterialInfo.kmt" in the user's documents
    /// folder, or from a file that the user chooses. The dialog begins with the path that was chosen last for loading,
    /// at first with that file; the registry remembers it in the section "VQVariables" as
    /// `Source\VQDraw\DrawProperty_STR_strOpenPath`.
    ///
    /// @return true, also when there is no such file, and the palette stays; false, and it stays as well, when the
    /// dialog is cancelled or the file cannot be opened.
    static bool LoadMaterialConfig(bool withDialog);
    /// Saves the palette, as `WriteMaterialConfigData` does, to those places; the path that was chosen last for saving
    /// is remembered as `..._strSavePath`. A missing "Configure" folder is made. The file replaces an old one only when
    /// it is whole.
    ///
    /// @return false when the dialog is cancelled or the file cannot be written; an old file is then as it was.
    static bool SaveMaterialConfig(bool withDialog);

    /// Replaces the palette by the materials of a text file with a key, an equals sign and a number on each line:
    /// shininess, alpha, and red, green and blue in 0.0 .. 1.0 of three colours, whose alphas are 1.
    ///
    /// - A line is cut at every `_`, `=` and line feed. A piece `END`, in capitals, finishes a material; a key takes
    ///   the piece behind it in the line as its number, 0 when that is none, and changes nothing when there is none
    ///   behind it. All else is passed over, the number of the material included.
    /// - Deliberate: what a material does not mention it has from the one before it in the file, the first one from a
    ///   material as made. One without `END` is not added.
    /// - Text is UTF-8, single bytes that are none being Latin-1, or UTF-16 when the file begins with its mark. The
    ///   stream is one of bytes. Lines end with LF or CR LF; the pieces of one of 1024 characters or more count as
    ///   lines. A decimal point is a point, whatever the locale.
    ///
    /// @return true, with a palette that may be empty; false, and the palette stays, for null and for a stream that
    /// could not be read to its end. Memory that cannot be had throws `std::bad_alloc` or `CMemoryException*`, and the
    /// palette stays.
    static bool LoadMaterialConfigData(std::FILE* file);
    /// Writes the palette in that form, in ASCII with LF at the ends of lines, numbers with four decimals and a point.
    /// @return true; false for null and when the stream does not take it all.
    static bool WriteMaterialConfigData(std::FILE* file);
    /// @}

    /// @name In document archives
    /// Numbers are stored with the low byte first, floats in 32 bits, colours of controls, histograms and reports in
    /// four bytes as `CVQColor` holds them. Tables begin with their number of rows, unsigned in four bytes. A document
    /// reads its blocks in the order in which it wrote them.
    ///
    /// When a reader finds fewer rows than a table has, the others stay; of more rows it reads as many as the table has
    /// and leaves the rest in the archive. An archive that ends too early throws its `CArchiveException*`; the tables
    /// that were stored in full before that have been read, the others are as they were, but that fonts and materials
    /// count one by one. Null changes nothing.
    /// @{
    /// Scene colours and sizes. Then the selection shapes take their colour.
    static void Read(CVQArchive* archive);
    static void Write(CVQArchive* archive);
    /// Colours of controls, the three alphas, and with them the palette's cursor. Then `CVQMessage::m_VQMsg[2]` is
    /// posted to target 1.
    ///
    /// Behind the colours stand, as older versions wrote their memory: the number of colours once more; 8 bytes, the
    /// alphas of controls, managers and floating dialogs, a 0, and the cursor; and of these once more the third to the
    /// sixth. When that number is 1 or 0, only so many times 4 of the 8 bytes are read before the last four.
    static void ReadUIColor(CVQArchive* archive);
    static void WriteUIColor(CVQArchive* archive);
    /// The ten default materials as `CVQMaterial::WriteFile` stores them, without a count.
    static void ReadDPMaterial(CVQArchive* archive);
    static void WriteDPMaterial(CVQArchive* archive);
    /// The eight fonts as `CVQFont::Write` stores them. Of more fonts than that, all are read and the surplus dropped.
    static void ReadFont(CVQArchive* archive);
    static void WriteFont(CVQArchive* archive);
    static void ReadHistogramColor(CVQArchive* archive);
    static void WriteHistogramColor(CVQArchive* archive);
    static void ReadReportColor(CVQArchive* archive);
    static void WriteReportColor(CVQArchive* archive);
    /// @}

    /// @name Tables
    /// @{
    static CArray<CVQMaterial, const CVQMaterial&> m_arrPalletMaterial; ///< the user's materials
    /// Scene colours. The rows of a light's position hold x, y, z, w, that of `DPC_TEXTUREMAT_SHININESS` one number.
    static float m_fColor[DPC_END][4];
    static float m_fSize[DPS_END];
    static unsigned char m_ucUICtrlAlpha[DPC_UI_ALPHA_END];
    static unsigned char m_ucFloatDialogAlpha; ///< how opaque floating dialogs are
    static int m_iMaterialCount;               ///< where walking through the palette has come to
    static CVQColor m_UICtrlColor[DPC_UI_COLOR_END];
    static CVQFont m_Font[DPF_END];
    static CVQMaterial m_Material[DPM_END];
    static CVQColor m_HistogramColor[DPC_HIST_COLOR_END];
    static CVQColor m_ReportColor[DPC_REPORT_COLOR_END];
    /// @}
};
