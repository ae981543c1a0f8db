// The life of a resource object, the same for all resource classes: `open` makes it, `save` and `saveAs` write it,
// `close` ends it.
//
// A class keeps its constructor, destructor and `unsigned long load()` private, names RscAccess its friend, and has a
// public `openMode()`:
//     BexThing* BexThing::open(const char* path, BexOpenMode mode) {
//         return RscAccess::open<BexThing>(path, mode, path, mode);
//     }
//     unsigned long BexThing::save() {
//         return saveByMode(openMode(), [this](BexSaveMode mode) { return saveAs(fileName(), mode); });
//     }
//     unsigned long BexThing::saveAs(const char* path, BexSaveMode mode) {
//         return maySave(path, mode) && write(path);
//     }
//     unsigned long BexThing::close(BexThing* thing, BexCloseMode mode) {
//         return RscAccess::close(thing, mode, [](BexThing& open) { return open.save(); });
//     }
#pragma once

#include "bexa/foundation/rsc_modes.h"

#include <exception>
#include <memory>
#include <utility>

namespace bexa::detail {

// Whether the state of the file allows to open it in this mode, and to write it.
bool mayOpen(const char* path, BexOpenMode mode);
bool maySave(const char* target, BexSaveMode mode);

// Whether a null or empty path ends `open` at once. Without that test a new object may have an empty path.
enum class EmptyPath { Refused, Accepted };

// What closing a null object answers. Kept on purpose: most classes answer true where the object would only be
// destroyed, that is with BexCloseDiscard, and false otherwise.
enum class NullObject { ClosesByDiscard, Refused };

struct RscAccess {
    // The object, made from `arguments`; null if the state of the file at `path` doesn't fit `mode` or the load
    // fails. The file stays as it was.
    template <class Resource, EmptyPath emptyPath = EmptyPath::Accepted, class... Arguments>
    static Resource* open(const char* path, BexOpenMode mode, Arguments&&... arguments) {
        if (emptyPath == EmptyPath::Refused && (!path || !*path)) return nullptr;
        if (!mayOpen(path, mode)) return nullptr;
        return make<Resource>(mode != BexOpenCreate, std::forward<Arguments>(arguments)...);
    }

    // An object made from `arguments`, without a look at the disk unless `load` says so.
    template <class Resource, class... Arguments>
    static Resource* make(bool load, Arguments&&... arguments) try {
        std::unique_ptr<Resource, Destroy> made(new Resource(std::forward<Arguments>(arguments)...));
        return !load || made->load() ? made.release() : nullptr;
    } catch (const std::exception&) {
        return nullptr; // no memory: nothing crosses the interface
    }

    // Ends the object as `mode` says; `save` is called with it where it must be saved. On failure it stays alive.
    template <NullObject nullObject = NullObject::ClosesByDiscard, class Resource, class Save>
    static unsigned long close(Resource* resource, BexCloseMode mode, Save save) {
        if (!resource) return nullObject == NullObject::ClosesByDiscard && mode == BexCloseDiscard;
        const bool readOnly = resource->openMode() == BexOpenRead;
        if (mode == BexCloseSave && readOnly) return 0;
        const bool discard = mode == BexCloseDiscard || (mode == BexCloseAuto && readOnly);
        if (!discard && !save(*resource)) return 0;
        Destroy()(resource);
        return 1;
    }

    // Ends an object whatever its state.
    struct Destroy {
        template <class Resource>
        void operator()(Resource* resource) const {
            delete resource;
        }
    };
};

// Saves an object under its own name: `saveAs` gets the mode that the open mode asks for. False, with nothing called,
// for a read-only object.
template <class SaveAs>
unsigned long saveByMode(BexOpenMode mode, SaveAs saveAs) {
    if (mode == BexOpenCreate) return saveAs(BexSaveNew);
    if (mode == BexOpenUpdate) return saveAs(BexSaveOverwrite);
    return 0;
}

// The same for a file that may be saved more than once from create mode: it is overwritten if it exists by now.
template <class SaveAs>
unsigned long saveByMode(BexOpenMode mode, const char* path, SaveAs saveAs) {
    if (mode == BexOpenCreate && !maySave(path, BexSaveNew)) return saveAs(BexSaveOverwrite);
    return saveByMode(mode, saveAs);
}

} // namespace bexa::detail
