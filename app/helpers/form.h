#pragma once

#include <memory>

// A generated form, set up on its widget.
template<typename Form, typename Widget>
std::unique_ptr<Form> makeForm(Widget *widget)
{
    auto form = std::make_unique<Form>();
    form->setupUi(widget);
    return form;
}
