#include "module/ui/Form.h"

#include "module/ui/controls/Button.h"
#include "module/ui/controls/Tabs.h"
#include "module/ui/controls/TextBox.h"

#include <algorithm>
#include <utility>

namespace tellurix::ui {

namespace {

void collectFocusable(const Layout& layout, std::vector<Control*>& order) {
    if (layout.control != nullptr && layout.control->takesFocus() && layout.control->usable()) {
        order.push_back(layout.control);
    }
    for (const Layout& child : layout.children)
        collectFocusable(child, order);
}

/// The first control that can take the focus and does not stand in the heading of a section, or null.
Control* firstContent(const Layout& layout) {
    if (layout.control != nullptr && layout.control->takesFocus() && layout.control->usable())
        return layout.control;
    const std::size_t first = layout.kind == Layout::Kind::section ? 1 : 0;
    for (std::size_t i = first; i < layout.children.size(); ++i) {
        if (Control* found = firstContent(layout.children[i])) return found;
    }
    return nullptr;
}

/// The field node that `matches`, or null.
template <typename Predicate>
const Layout* findField(const Layout& layout, const Predicate& matches) {
    if (layout.kind == Layout::Kind::field && matches(layout)) return &layout;
    for (const Layout& child : layout.children) {
        if (const Layout* found = findField(child, matches)) return found;
    }
    return nullptr;
}

/// The button that a layout leads on by and that can be pressed, or null.
Button* leading(const Layout& layout) {
    if (layout.leads && layout.control->usable()) return as<Button>(layout.control);
    for (const Layout& child : layout.children) {
        if (Button* found = leading(child)) return found;
    }
    return nullptr;
}

/// The label over the column of a table that a control stands in, or null.
Label* columnLabel(const Layout& layout, const Control& control) {
    if (layout.kind == Layout::Kind::table) {
        const auto cell = std::ranges::find_if(
            layout.children, [&control](const Layout& child) { return child.control == &control; });
        const auto columns = static_cast<std::ptrdiff_t>(layout.columns);
        if (cell != layout.children.end() && cell - layout.children.begin() >= columns)
            return as<Label>((layout.children.begin() + (cell - layout.children.begin()) % columns)->control);
    }
    for (const Layout& child : layout.children) {
        if (Label* found = columnLabel(child, control)) return found;
    }
    return nullptr;
}

} // namespace

Form::Form(std::string name, std::string title) : name_(std::move(name)), title_(std::move(title)) {}

void Form::setTitle(std::string title) {
    if (title == title_) return;
    title_ = std::move(title);
    titleDirty_ = true;
}

std::size_t Form::add(Control& control) {
    controls_.push_back(&control);
    return controls_.size() - 1;
}

Control* Form::find(std::string_view name) const {
    const auto found =
        std::ranges::find_if(controls_, [name](const Control* c) { return c->name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

void Form::setLayout(Layout layout) {
    layout_ = std::move(layout);
    adopt(layout_, nullptr, -1);
}

void Form::adopt(const Layout& layout, Control* container, int page) {
    Control* inner = container;
    if (layout.control != nullptr) {
        layout.control->container_ = container;
        layout.control->page_ = page;
        if (layout.encloses()) {
            inner = layout.control;
            page = -1;
        }
    }
    for (std::size_t i = 0; i < layout.children.size(); ++i) {
        adopt(layout.children[i], inner, layout.kind == Layout::Kind::tabs ? static_cast<int>(i) : page);
    }
}

std::vector<Control*> Form::tabOrder() const {
    std::vector<Control*> order;
    collectFocusable(layout_, order);
    return order;
}

Button* Form::primaryButton() const {
    return leading(layout_);
}

Control* Form::firstControl() const {
    if (Control* content = firstContent(layout_)) return content;
    const std::vector<Control*> order = tabOrder();
    return order.empty() ? nullptr : order.front();
}

Control* Form::labelled(const Label& label) const {
    const Layout* field = findField(layout_, [&label](const Layout& node) { return node.control == &label; });
    return field == nullptr || field->children.empty() ? nullptr : field->children.front().control;
}

Label* Form::labelOf(const Control& control) const {
    const Layout* field = findField(layout_, [&control](const Layout& node) {
        return std::ranges::any_of(node.children,
                                   [&control](const Layout& c) { return c.control == &control; });
    });
    return field == nullptr ? columnLabel(layout_, control) : as<Label>(field->control);
}

bool Form::setFocus(Control& control) {
    if (!control.takesFocus() || !control.usable()) return false;
    focused_ = &control;
    if (TextBox* box = as<TextBox>(&control)) box->selectAll();
    if (control.onFocus) control.onFocus();
    return true;
}

void Form::load() {
    loaded_ = true;
    focused_ = nullptr;
    titleDirty_ = true;
    for (Control* control : controls_)
        control->markDirty();
}

bool Form::unload() {
    if (!loaded_) return true;
    // A question asked while closing must not start the closing again.
    if (unloading_) return false;
    struct Closing {
        explicit Closing(bool& flag) : flag_(flag) { flag_ = true; }
        ~Closing() { flag_ = false; }
        bool& flag_;
    } closing{unloading_};
    if (!queryUnload()) return false;
    loaded_ = false;
    later_ = nullptr;
    return true;
}

bool Form::doLater() {
    if (!later_) return false;
    // The step itself, too, may want something else to be done.
    std::function<bool()> step = std::exchange(later_, nullptr);
    if (step() && !later_) later_ = std::move(step);
    return true;
}

} // namespace tellurix::ui
