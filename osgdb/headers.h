// The OpenSceneGraph headers of _osgDB's functions.
#pragma once
#include <osgDB/ReadFile>
#include <osgDB/Registry>
#include <osgDB/WriteFile>
