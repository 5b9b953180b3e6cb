#pragma once

#include <QCoreApplication>
#include <QPointer>

namespace quillon {

// The one instance of a form, created on first use and reachable by the form's type.  A form
// without a parent is destroyed before the application object goes, as a window must be.
template <typename Form>
class FormInstance {
public:
    static Form &get()
    {
        QPointer<Form> &form = pointer();
        if (!form) {
            static bool routineAdded = false;
            if (!routineAdded) {
                qAddPostRoutine(&FormInstance::destroy);
                routineAdded = true;
            }
            form = new Form;
        }
        return *form;
    }
    static Form *existing() { return pointer().data(); }
    static void destroy() { delete pointer().data(); }

private:
    static QPointer<Form> &pointer()
    {
        static QPointer<Form> form;
        return form;
    }
};

} // namespace quillon
