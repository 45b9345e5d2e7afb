#pragma once

#include "window/controls/combo_box.h"
#include "window/controls/combo_box_messages.h"
#include "window/drawing/image_list.h"

/// A handle on a combo box whose rows have images. It is any combo box of a template.
class KVGUICTL_API CComboBoxEx : public CComboBox {
public:
    static constexpr CRuntimeClass classCComboBoxEx{"CComboBoxEx"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCComboBoxEx; }

    /// The index that the row got; -1 without a text, and for an index behind the end.
    int InsertItem(const COMBOBOXEXITEM* item);
    /// Changes what the record's mask names; false where there is no such row.
    BOOL SetItem(const COMBOBOXEXITEM* item);
    /// Fills what the record's mask asks for.
    BOOL GetItem(COMBOBOXEXITEM* item) const;
    /// How many rows are left.
    int DeleteItem(int row);

    /// Null takes the images away. Returns the former list, null for none and where its handle is
    /// gone.
    CImageList* SetImageList(CImageList* images);
    CImageList* GetImageList() const;
};
