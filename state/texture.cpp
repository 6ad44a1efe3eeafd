// osg::Texture2D. Its descriptor has no edge to its bases, so only these rows accept it.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using T2 = osg::Texture2D;
using K = Class<T2, "osg::Texture2D", "Texture2D">;
using I = osg::Image;
constexpr Text img = "osg::Image *";
constexpr Text ui = "unsigned int";
constexpr Text state_ref = "osg::State &";

}  // namespace

void add_texture2d_rows(Table &t) {
    add(t, {
        K::ctor<TakeRef::None, K::with<>::c<>, K::with<I *>::c<img>,
                K::with<const T2 &, const osg::CopyOp &>::c<"osg::Texture2D const &", "osg::CopyOp const &">,
                K::with<const T2 &>::c<"osg::Texture2D const &">>(),
        K::fn<"compare", &T2::compare, "osg::StateAttribute const &">(),
        K::fn<"getTextureTarget", &T2::getTextureTarget>(),
        K::fn<"isDirty", &T2::isDirty, ui>(),
        // The count comes back as a number, not as a pointer to the texture's slot.
        K::fn<"getModifiedCount", [](const T2 *self, unsigned int id) -> unsigned int { return self->getModifiedCount(id); }, ui>(),
        K::overload<"setImage", K::m<"setImage", pick<void (T2::*)(I *)>(&T2::setImage), img>,
                    K::m<"setImage", pick<void (T2::*)(unsigned int, I *)>(&T2::setImage), ui, img>>(),
        K::overload<"getImage", K::m<"getImage", pick<I *(T2::*)()>(&T2::getImage)>,
                    K::m<"getImage", pick<const I *(T2::*)() const>(&T2::getImage)>,
                    K::m<"getImage", pick<I *(T2::*)(unsigned int)>(&T2::getImage), ui>,
                    K::m<"getImage", pick<const I *(T2::*)(unsigned int) const>(&T2::getImage), ui>>(),
        K::fn<"getNumImages", &T2::getNumImages>(),
        K::fn<"setTextureSize", &T2::setTextureSize, "int", "int">(),
        K::fn<"setTextureWidth", &T2::setTextureWidth, "int">(),
        K::fn<"setTextureHeight", &T2::setTextureHeight, "int">(),
        K::fn<"getTextureWidth", &T2::getTextureWidth>(),
        K::fn<"getTextureHeight", &T2::getTextureHeight>(),
        K::fn<"getTextureDepth", &T2::getTextureDepth>(),
        K::fn<"setSubloadCallback", &T2::setSubloadCallback, "osg::Texture2D::SubloadCallback *">(),
        K::pair<"getSubloadCallback", pick<T2::SubloadCallback *(T2::*)()>(&T2::getSubloadCallback),
                pick<const T2::SubloadCallback *(T2::*)() const>(&T2::getSubloadCallback)>(),
        K::fn<"setNumMipmapLevels", &T2::setNumMipmapLevels, ui>(),
        K::fn<"getNumMipmapLevels", &T2::getNumMipmapLevels>(),
        K::fn<"copyTexImage2D", &T2::copyTexImage2D, state_ref, "int", "int", "int", "int">(),
        K::fn<"copyTexSubImage2D", &T2::copyTexSubImage2D, state_ref, "int", "int", "int", "int", "int", "int">(),
        K::fn<"apply", &T2::apply, state_ref>(),
        register_row<ty::p_osg__Texture2D>("Texture2D_swigregister"),
        init_row("Texture2D_swiginit"),
    });
}
