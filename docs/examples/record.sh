# Opens the dialog, and writes what is done in it as a script.
kvdlg run CKvGuiPipeStatusDlg --record done.json >seen.json
# Does the same again, without a window.
kvdlg run CKvGuiPipeStatusDlg --script done.json >played.json
diff seen.json played.json && echo "the same"
