import sys; sys.path.insert(0,'build')
import _osg, _osgpeer as p
ss=_osg.new_StateSet(); f=_osg.new_Fog()
for args in [(0,None,1),(0,None)]:
    _osg.StateSet_setTextureAttribute(ss,*args); _osg.StateSet_setTextureAttributeAndModes(ss,*args)
print("A")
_osg.StateSet_setAssociatedTextureModes(ss,0,f,1); _osg.StateSet_removeAssociatedTextureModes(ss,0,f)
print("B")
_osg.StateSet_removeTextureAttribute(ss,0,f); _osg.StateSet_removeTextureAttribute(ss,0,0)
print("C")
t=_osg.new_Texture2D(None); print(_osg.Texture2D_getImage(t))
_osg.StateSet_addUniform(ss, None); _osg.StateSet_removeUniform(ss, None)
print("D")
