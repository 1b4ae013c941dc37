#include "widgets/NativeControls.h"

#include <gtk/gtk.h>

namespace cvlang {
namespace {

/// The toolkit's list is a tree view inside a scrolled window.
GtkTreeView* TreeOf(const wxListBox& list) {
    return GTK_TREE_VIEW(gtk_bin_get_child(GTK_BIN(list.GetHandle())));
}

/// The part that takes the focus lies inside of what the toolkit knows.
void NameWidget(GtkWidget* widget, gpointer name) {
    atk_object_set_name(gtk_widget_get_accessible(widget), static_cast<const char*>(name));
    if (GTK_IS_CONTAINER(widget))
        gtk_container_foreach(GTK_CONTAINER(widget), NameWidget, name);
}

/// Runs once all rows are measured. GTK sometimes loses its own request to lay them out again, and
/// then draws no row beyond the former width.
gboolean LayOutRows(gpointer tree) {
    GtkAllocation place;
    gtk_widget_get_allocation(GTK_WIDGET(tree), &place);
    gtk_widget_queue_resize(GTK_WIDGET(tree));
    gtk_widget_get_preferred_size(GTK_WIDGET(tree), nullptr, nullptr);
    if (gtk_widget_get_mapped(GTK_WIDGET(tree)))
        gtk_widget_size_allocate(GTK_WIDGET(tree), &place);
    return G_SOURCE_REMOVE;
}

}  // namespace

void ReplaceEntries(wxListBox& list, const wxArrayString& entries) {
    GtkTreeView* tree = TreeOf(list);
    GtkTreeModel* rows = gtk_tree_view_get_model(tree);
    list.SetSelection(wxNOT_FOUND);
    // The rows of a visible list are removed, added and reported to screen readers one by one.
    g_object_ref(rows);
    gtk_tree_view_set_model(tree, nullptr);
    list.Set(entries);
    gtk_tree_view_set_model(tree, rows);
    g_object_unref(rows);
    gtk_adjustment_set_value(gtk_scrollable_get_hadjustment(GTK_SCROLLABLE(tree)), 0);
    gtk_adjustment_set_value(gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(tree)), 0);
    g_idle_add_full(G_PRIORITY_LOW, LayOutRows, g_object_ref(tree), g_object_unref);
}

void SetAccessibleName(wxWindow& control, const wxString& name) {
    std::string text = name.utf8_string();
    NameWidget(control.GetHandle(), text.data());
}

void SetProgramIcon(wxTopLevelWindow& window) {
    gtk_window_set_icon_name(GTK_WINDOW(window.GetHandle()), "cvlangtranslator");
}

bool HasSystemMessageBox() {
    return false;
}

int ShowSystemMessageBox(const wxWindow*, const wxString&, const wxString&, int) {
    return 0;
}

}  // namespace cvlang
