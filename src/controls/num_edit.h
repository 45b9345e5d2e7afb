#pragma once

#include "base/cstring.h"
#include "window/controls/edit.h"
#include "window/message_handlers.h"
#include "window/runtime_class.h"

/// An edit for one number within a range.
///
/// A character that makes the text wrong is taken back as it is typed; digits, the point and the
/// backspace are let through, and what they make is judged when the focus leaves, and ahead of a
/// push button other than Cancel that Enter or its own key presses while the focus stays. Until its
/// range is set, a box takes 0 alone.
class KVGUICTL_API CNumEdit : public CEdit {
public:
    CNumEdit() = default;

    /// What `IsValid` answers.
    enum : int {
        kValid = 0,
        kOutOfRange = 1,
        kNoNumber = 2,
        kSignAlone = 3,  ///< "+" or "-", with which a number begins
    };

    /// Adds so many steps, and stops at the end of the range.
    virtual void ChangeAmount(int nStep);
    virtual double GetDelta() { return m_dDelta; }
    /// The step.
    virtual void SetDelta(double dDelta) { m_dDelta = dDelta; }
    virtual void GetRange(double& dMin, double& dMax) const;
    /// Both ends belong to it.
    virtual void SetRange(double dMin, double dMax);
    /// Whether wrong input is reported in a message box; at first not.
    virtual int Verbose() const { return m_bVerbose; }
    virtual void Verbose(int bVerbose) { m_bVerbose = bVerbose; }
    /// Judges a text, or the text of the box.
    virtual int IsValid(const CString& str) const;
    virtual int IsValid() const;
    /// Shows a value. 0, and nothing changed, for one out of the range, else 1.
    virtual int SetValue(double dValue);
    /// The value; the lower end of the range where the text is not valid.
    virtual double GetValue() const;
    /// The printf format in which a value is shown: with decimals if it has a fraction in six
    /// significant digits. Returns `str`.
    virtual CString& ConstructFormat(CString& str, double dValue);
    /// Decimals of a number that has a fraction; 3 at first.
    void SetPrecision(int nPrecision) { m_nPrecision = nPrecision; }

    static const CRuntimeClass classCNumEdit;
    const CRuntimeClass* GetRuntimeClass() const override { return &classCNumEdit; }

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnKillFocus(CWnd* pNewWnd);

    int m_bVerbose = 0;
    double m_dDelta = 0.0;
    double m_dMinValue = 0.0;
    double m_dMaxValue = 0.0;
    int m_nPrecision = 3;

private:
    bool InRange(double dValue) const { return dValue >= m_dMinValue && dValue <= m_dMaxValue; }
    int Judge(const CString& text) const;
    void Restore(double dValue);
    bool MayBeLeft();

    bool m_bTelling = false;
};
